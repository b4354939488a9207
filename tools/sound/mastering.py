"""From a mix to a file: the same loudness for every cue, soft ends, 16 bit.

    samples = mastered(mix.samples)
    write_wav(path, samples)
    measure(samples)                    # length, peak, loudness, offset

Loudness is measured as broadcasters do it: weighted for the ear, in blocks of 0.4 s, quiet blocks left out.
"""

import array
import math
import sys
import wave
from collections import namedtuple

from synth import RATE, biquad, count, highpass, lowpass, saturated

LOUDNESS = -17.0  # LUFS, every cue
PEAK = 10 ** (-1.2 / 20)  # a little below -1 dBFS, so that rounding cannot reach it
FADE = 0.004  # seconds at both ends

Measured = namedtuple("Measured", "seconds peak loudness offset")


def decibels(amplitude):
    return 20 * math.log10(max(amplitude, 1e-9))


def shelf():
    """The ear's weighting, first half: 4 dB more above about 1.7 kHz (the head in the sound's way)."""
    a = 10 ** (4.0 / 40)
    w = 2 * math.pi * 1682.0 / RATE
    cos_w, alpha = math.cos(w), math.sin(w) / (2 * 0.7072)
    root = 2 * math.sqrt(a) * alpha
    a0 = (a + 1) - (a - 1) * cos_w + root
    b = (a * ((a + 1) + (a - 1) * cos_w + root),
         -2 * a * ((a - 1) + (a + 1) * cos_w),
         a * ((a + 1) + (a - 1) * cos_w - root))
    return (b[0] / a0, b[1] / a0, b[2] / a0,
            2 * ((a - 1) - (a + 1) * cos_w) / a0,
            ((a + 1) - (a - 1) * cos_w - root) / a0)


def power_to_lufs(power):
    return -0.691 + 10 * math.log10(max(power, 1e-12))


def loudness(samples):
    """Gated loudness in LUFS. A sound shorter than a block is one block."""
    fixed = shelf()
    # The second half of the weighting: the ear hardly counts what is below 40 Hz.
    heard = highpass(biquad(samples, lambda i: fixed), 38.1, 0.5)
    size = min(count(0.4), len(heard))
    powers = [sum(x * x for x in heard[start:start + size]) / size
              for start in range(0, len(heard) - size + 1, max(1, size // 4))]
    audible = [p for p in powers if power_to_lufs(p) > -70] or [0.0]
    gate = power_to_lufs(sum(audible) / len(audible)) - 10
    kept = [p for p in audible if power_to_lufs(p) > gate] or [0.0]
    return power_to_lufs(sum(kept) / len(kept))


def faded(samples):
    size = count(FADE)
    out = list(samples)
    for i in range(size):
        part = 0.5 - 0.5 * math.cos(math.pi * i / size)
        out[i] *= part
        out[-1 - i] *= part
    return out


def centred(samples):
    """Takes out the offset; weighted so that the ends, which the fades brought to zero, stay there."""
    window = [math.sin(math.pi * i / (len(samples) - 1)) for i in range(len(samples))]
    offset = sum(samples) / sum(window)
    return [x - offset * w for x, w in zip(samples, window)]


def mastered(samples):
    """A worn radio's band, then louder and louder into the tape until the loudness is reached."""
    band = lowpass(highpass(samples, 45), 8500)
    peak = max(abs(x) for x in band)
    band = [x / peak for x in band]
    low, high = -30.0, 30.0
    for _ in range(14):  # halves 60 dB down to less than 0.01 dB
        drive = (low + high) / 2
        out = centred(faded([PEAK * x for x in saturated(band, 10 ** (drive / 20))]))
        if loudness(out) < LOUDNESS:
            low = drive
        else:
            high = drive
    return out


def measure(samples):
    return Measured(len(samples) / RATE, decibels(max(abs(x) for x in samples)), loudness(samples),
                    sum(samples) / len(samples))


def write_wav(path, samples):
    data = array.array("h", (int(round(32767 * x)) for x in samples))
    if sys.byteorder == "big":
        data.byteswap()
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(data.tobytes())


def read_wav(path):
    with wave.open(str(path), "rb") as file:
        if (file.getnchannels(), file.getsampwidth(), file.getframerate()) != (1, 2, RATE):
            raise ValueError(f"{path}: expected mono, 16 bit, {RATE} Hz")
        data = array.array("h", file.readframes(file.getnframes()))
    if sys.byteorder == "big":
        data.byteswap()
    return [x / 32767 for x in data]
