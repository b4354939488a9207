"""The bricks all sounds are made of: sources, envelopes, filters, rooms, a mixing desk.

    hiss = highpass(noise(rng, 0.5), 3000)
    mix = Mix(2.0)
    mix.add(shaped(hiss, decay(0.2)), at=0.3, gain=0.8)
    mix.samples                         # a plain list of floats

A sound is a list of floats at RATE samples a second. Every function returns a new list.
Where a parameter may move, it is a number or a function of the time in seconds.
Chance comes from the generator that the caller hands in, so the same cue is the same bytes for ever.
"""

import math
from bisect import bisect_right

RATE = 22050
CONTROL_STEP = 32  # samples between two updates of a moving parameter: 1.5 ms, too short to hear


def count(seconds):
    return int(round(seconds * RATE))


def moving(value):
    """Turns a number into a function of time; leaves a function as it is."""
    return value if callable(value) else lambda t: value


# --- Envelopes: functions of time ---------------------------------------------------------------


def curve(*points):
    """Straight lines through (time, value) points, level before the first and after the last."""
    times = [t for t, _ in points]
    values = [v for _, v in points]

    def at(t):
        i = bisect_right(times, t)
        if i == 0:
            return values[0]
        if i == len(times):
            return values[-1]
        part = (t - times[i - 1]) / (times[i] - times[i - 1])
        return values[i - 1] + part * (values[i] - values[i - 1])

    return at


def decay(time_constant, attack=0.0005):
    """A blow: up in `attack` seconds, then down to 1/e every `time_constant` seconds."""

    def at(t):
        if t < attack:
            return t / attack
        return math.exp((attack - t) / time_constant)

    return at


def wander(rng, low, high, every):
    """A smooth random walk between two values, a new aim about every `every` seconds."""
    points = []
    t = 0.0
    while t < 12.0:  # longer than any cue
        points.append((t, rng.uniform(low, high)))
        t += every * rng.uniform(0.6, 1.4)
    return curve(*points)


def shaped(samples, envelope):
    return [x * envelope(i / RATE) for i, x in enumerate(samples)]


# --- Sources ------------------------------------------------------------------------------------


def noise(rng, seconds):
    return [rng.uniform(-1.0, 1.0) for _ in range(count(seconds))]


def brown_noise(rng, seconds):
    """Noise that falls 6 dB an octave: earth, engines, wind. The leak keeps it about zero."""
    out = []
    level = 0.0
    for _ in range(count(seconds)):
        level = 0.985 * level + 0.17 * rng.uniform(-1.0, 1.0)
        out.append(level)
    return out


def oscillator(frequency, seconds, wave):
    """Any wave: a function of the phase in 0..1 and of its step from one sample to the next."""
    frequency = moving(frequency)
    out = []
    phase = 0.0
    for i in range(count(seconds)):
        if i % CONTROL_STEP == 0:
            step = frequency(i / RATE) / RATE
        out.append(wave(phase, step))
        phase = (phase + step) % 1.0
    return out


def sine(frequency, seconds):
    return oscillator(frequency, seconds, lambda phase, step: math.sin(2 * math.pi * phase))


def smooth_saw(phase, step):
    """The jump is rounded over two samples: a bare one would fold false tones down into the sound."""
    value = 2.0 * phase - 1.0
    if phase < step:
        before = phase / step - 1
        value += before * before
    elif phase > 1 - step:
        after = (phase - 1) / step + 1
        value -= after * after
    return value


def saw(frequency, seconds):
    return oscillator(frequency, seconds, smooth_saw)


def puffs(frequency, seconds, sharpness):
    """Pressure pulses, as from an exhaust: the sharper, the shorter each one; without offset."""
    mean = (1 - math.exp(-sharpness)) / sharpness
    return oscillator(frequency, seconds, lambda phase, step: math.exp(-sharpness * phase) - mean)


def ringing(seconds, partials):
    """A struck thing: sines of (frequency, loudness, time constant), each dying on its own."""
    out = [0.0] * count(seconds)
    for frequency, loudness, time_constant in partials:
        # A rotating vector: two multiplications a sample instead of a sine and a power.
        turn = 2 * math.pi * frequency / RATE
        shrink = math.exp(-1.0 / (time_constant * RATE))
        cos_turn, sin_turn = shrink * math.cos(turn), shrink * math.sin(turn)
        x, y = loudness, 0.0
        for i in range(len(out)):
            out[i] += y
            x, y = x * cos_turn - y * sin_turn, x * sin_turn + y * cos_turn
    return out


# --- Filters ------------------------------------------------------------------------------------


def coefficients(kind, frequency, q):
    """Second-order filter of unit gain: 'low', 'high' or 'band' (0 dB at the middle)."""
    w = 2 * math.pi * min(max(frequency, 10.0), 0.48 * RATE) / RATE
    cos_w, alpha = math.cos(w), math.sin(w) / (2 * q)
    if kind == "low":
        b0, b1, b2 = (1 - cos_w) / 2, 1 - cos_w, (1 - cos_w) / 2
    elif kind == "high":
        b0, b1, b2 = (1 + cos_w) / 2, -(1 + cos_w), (1 + cos_w) / 2
    else:
        b0, b1, b2 = alpha, 0.0, -alpha
    a0 = 1 + alpha
    return b0 / a0, b1 / a0, b2 / a0, -2 * cos_w / a0, (1 - alpha) / a0


def biquad(samples, steps):
    """Runs a second-order filter; `steps(i)` gives its coefficients at every CONTROL_STEP."""
    out = []
    x1 = x2 = y1 = y2 = 0.0
    for start in range(0, len(samples), CONTROL_STEP):
        b0, b1, b2, a1, a2 = steps(start)
        for x in samples[start:start + CONTROL_STEP]:
            y = b0 * x + b1 * x1 + b2 * x2 - a1 * y1 - a2 * y2
            x2, x1, y2, y1 = x1, x, y1, y
            out.append(y)
    return out


def filtered(samples, kind, frequency, q):
    if callable(frequency):
        return biquad(samples, lambda i: coefficients(kind, frequency(i / RATE), q))
    fixed = coefficients(kind, frequency, q)
    return biquad(samples, lambda i: fixed)


def lowpass(samples, frequency, q=0.707):
    return filtered(samples, "low", frequency, q)


def highpass(samples, frequency, q=0.707):
    return filtered(samples, "high", frequency, q)


def bandpass(samples, frequency, q):
    return filtered(samples, "band", frequency, q)


# --- Distance, rooms, tape ----------------------------------------------------------------------


def echoes(samples, taps, tail=1.0):
    """Adds later, duller copies: taps of (delay in seconds, loudness, what is left of the treble in Hz)."""
    mix = Mix(len(samples) / RATE + tail)
    mix.add(samples)
    for delay, loudness, treble in taps:
        mix.add(lowpass(samples, treble), at=delay, gain=loudness)
    return mix.samples


def comb(samples, delay, feedback, damping):
    line = [0.0] * delay
    out = []
    kept = 0.0
    for i, x in enumerate(samples):
        y = line[i % delay]
        kept = (1 - damping) * y + damping * kept
        line[i % delay] = x + feedback * kept
        out.append(y)
    return out


def allpass(samples, delay, feedback):
    line = [0.0] * delay
    out = []
    for i, x in enumerate(samples):
        y = line[i % delay]
        line[i % delay] = x + feedback * y
        out.append(y - feedback * line[i % delay])
    return out


def reverb(samples, seconds, wet, damping=0.4, size=1.0):
    """A room in which sound takes `seconds` to die by 60 dB; `size` stretches its walls apart."""
    dry = samples + [0.0] * count(seconds)
    room = [0.0] * len(dry)
    for wall in (0.0297, 0.0371, 0.0411, 0.0437):
        delay = count(wall * size)
        feedback = 10 ** (-3.0 * wall * size / seconds)
        for i, y in enumerate(comb(dry, delay, feedback, damping)):
            room[i] += 0.25 * y
    for wall in (0.005, 0.0017):
        room = allpass(room, count(wall), 0.7)
    return [x + wet * y for x, y in zip(dry, room)]


def saturated(samples, drive):
    """Overdriven like a tape: loud parts are squeezed to just under 1, quiet ones stay clean."""
    return [math.tanh(drive * x) for x in samples]


class Mix:
    """A desk of fixed length: sounds are added at their times, what hangs over the end is cut."""

    def __init__(self, seconds):
        self.samples = [0.0] * count(seconds)

    def add(self, samples, at=0.0, gain=1.0):
        first = count(at)
        for i, x in enumerate(samples[:max(0, len(self.samples) - first)], first):
            self.samples[i] += gain * x
        return self
