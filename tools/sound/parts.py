"""Things that make noise, used by several cues: guns, bombs, voices, rotors, motors, metal, feet.

Each function returns a list of samples that starts with the thing itself; the cue places it and sets
its loudness.
"""

import math

from synth import (RATE, Mix, bandpass, brown_noise, count, curve, decay, highpass, lowpass, moving, noise,
                   puffs, ringing, saturated, saw, shaped, sine, wander)

# --- Guns and bombs -----------------------------------------------------------------------------


def gunshot(rng, calibre=1.0, treble=7000):
    """The crack of the bullet, the blast, the boom behind it. A larger calibre is deeper and longer."""
    mix = Mix(0.5 * calibre)
    crack = highpass(noise(rng, 0.03), 1800)
    mix.add(shaped(crack, decay(0.004, 0.0002)), gain=0.9)
    fall = curve((0, treble), (0.03 * calibre, 2200 / calibre), (0.2 * calibre, 350 / calibre))
    blast = lowpass(noise(rng, 0.45 * calibre), fall)
    mix.add(shaped(blast, decay(0.045 * calibre)), gain=1.8)
    mix.add(shaped(bandpass(noise(rng, 0.3 * calibre), 700, 0.6), decay(0.03 * calibre)), gain=1.5)
    boom = lowpass(noise(rng, 0.45 * calibre), 150 / calibre)
    mix.add(shaped(boom, decay(0.08 * calibre, 0.002)), gain=2.0)
    return saturated(mix.samples, 1.6)


def debris(rng, seconds, pieces, thickest=0.2):
    """Stones and planks coming down: most of them early, later ones smaller."""
    mix = Mix(seconds)
    for _ in range(pieces):
        at = min(rng.expovariate(1 / (thickest * seconds)), seconds - 0.1)
        size = rng.uniform(0.2, 1.0) * (1 - at / seconds)
        piece = bandpass(noise(rng, 0.09), rng.uniform(300, 2600), rng.uniform(1.0, 4.0))
        mix.add(shaped(piece, decay(rng.uniform(0.006, 0.03))), at=at, gain=1.6 * size)
    return mix.samples


def explosion(rng, seconds=2.5):
    mix = Mix(seconds)
    mix.add(shaped(noise(rng, 0.05), decay(0.012, 0.0002)), gain=1.0)
    fall = curve((0, 6000), (0.12, 1500), (0.7, 350), (seconds, 120))
    body = lowpass(noise(rng, seconds), fall)
    mix.add(shaped(body, decay(0.32 * seconds / 2.5)), gain=2.2)
    deep = sine(curve((0, 95), (0.25, 46), (seconds, 30)), seconds)
    mix.add(shaped(deep, decay(0.4, 0.004)), gain=1.0)
    rumble = lowpass(brown_noise(rng, seconds), 160)
    mix.add(shaped(rumble, curve((0, 0), (0.15, 1), (seconds, 0))), gain=1.1)
    mix.add(debris(rng, seconds - 0.2, 45), at=0.2, gain=0.5)
    return saturated(mix.samples, 1.5)


def ricochet(rng, seconds=0.6):
    """A bullet that flies on, tumbling: a whistle that falls and trembles."""
    start, end = rng.uniform(2600, 3100), rng.uniform(900, 1200)

    def pitch(t):
        return start * (end / start) ** (t / seconds) * (1 + 0.03 * math.sin(2 * math.pi * 34 * t))

    mix = Mix(seconds)
    mix.add(sine(pitch, seconds), gain=0.6)
    mix.add(bandpass(noise(rng, seconds), pitch, 14), gain=1.6)
    return shaped(mix.samples, curve((0, 0), (0.02, 1), (0.25 * seconds, 0.5), (seconds, 0)))


# --- Voices -------------------------------------------------------------------------------------

# The first three resonances of the mouth in Hz.
VOWELS = {
    "a": (760, 1180, 2500),
    "e": (530, 1780, 2480),
    "o": (560, 880, 2400),
    "u": (340, 800, 2240),
}


def voice(rng, vowels, pitch, seconds, breath=0.08):
    """A shout: a buzzing throat with an unsteady pitch, and a mouth that glides through the vowels."""
    pitch = moving(pitch)
    shake = wander(rng, 0.97, 1.03, 0.04)
    throat = saw(lambda t: pitch(t) * shake(t), seconds)
    air = noise(rng, seconds)
    source = [x + breath * a for x, a in zip(throat, air)]
    mouth = rng.uniform(0.93, 1.12)
    mix = Mix(seconds)
    for formant, (loudness, q) in enumerate(((1.0, 6), (1.1, 9), (0.9, 10))):
        path = curve(*((seconds * (i + 0.5) / len(vowels), mouth * VOWELS[v][formant])
                       for i, v in enumerate(vowels)))
        mix.add(bandpass(source, path if len(vowels) > 1 else path(0), q), gain=loudness)
    return mix.samples


# --- Machines -----------------------------------------------------------------------------------


def blade_thump(rng):
    """One blade going by: a push of air and the slap of the tip."""
    mix = Mix(0.075)
    bell = curve((0, 0), (0.012, 1), (0.028, 0.6), (0.07, 0))
    mix.add(shaped(sine(curve((0, 125), (0.06, 70)), 0.075), bell), gain=0.55)
    mix.add(shaped(lowpass(noise(rng, 0.075), 420), bell), gain=1.3)
    slap = lowpass(bandpass(noise(rng, 0.075), 800, 0.8), 1800)
    mix.add(shaped(slap, curve((0, 0), (0.006, 1), (0.022, 0.35), (0.07, 0))), gain=4.0)
    return mix.samples


def helicopter(rng, seconds, rate, power=1.0):
    """Two blades, `rate` thumps a second; a motor and a turbine that turn with them.

    `power` is how hard the motor works: 1 flies, 0 leaves only the blades.
    """
    rate, power = moving(rate), moving(power)
    mix = Mix(seconds)
    thumps = [blade_thump(rng) for _ in range(6)]
    t, blade = 0.02, 0
    while t < seconds:
        gain = (1.0, 0.8)[blade % 2] * rng.uniform(0.9, 1.1)
        mix.add(thumps[rng.randrange(len(thumps))], at=t, gain=gain)
        blade += 1
        t += 1 / rate(t)

    def turning(factor):
        return lambda t: factor * rate(t)

    motor = puffs(turning(8.5), seconds, 5)
    motor = lowpass(motor, 700)
    tail_rotor = lowpass(saw(turning(5.2), seconds), 380)
    turbine = [x + 0.6 * y for x, y in zip(sine(turning(232), seconds), sine(turning(311), seconds))]
    wash = bandpass(noise(rng, seconds), 1500, 0.5)
    for part, gain in ((motor, 0.28), (tail_rotor, 0.12), (turbine, 0.035), (wash, 0.12)):
        mix.add(shaped(part, power), gain=gain)
    return saturated(mix.samples, 1.2)


def car_engine(rng, seconds, firing):
    """Eight cylinders and a hole in the exhaust; `firing` explosions a second."""
    uneven = wander(rng, 0.985, 1.015, 0.05)
    firing = moving(firing)
    pulses = puffs(lambda t: firing(t) * uneven(t), seconds, 6)
    # The two banks of cylinders do not sound alike: half the firing rate is in it too.
    bank = saw(lambda t: 0.5 * firing(t) * uneven(t), seconds)
    mix = Mix(seconds)
    mix.add(lowpass(pulses, 1400), gain=1.0)
    mix.add(lowpass(bank, 260), gain=0.5)
    mix.add(bandpass(noise(rng, seconds), 1800, 0.6), gain=0.1)
    return saturated(mix.samples, 2.0)


def tyres(rng, seconds):
    """Rubber that slips and grips: a strained, wavering squeal."""
    pitch = wander(rng, 930, 1120, 0.09)
    rough = wander(rng, 0.45, 1.0, 0.018)
    mix = Mix(seconds)
    mix.add(bandpass(saw(pitch, seconds), 1500, 0.5), gain=0.6)
    mix.add(bandpass(noise(rng, seconds), pitch, 9), gain=1.6)
    mix.add(bandpass(noise(rng, seconds), lambda t: 2.02 * pitch(t), 12), gain=1.0)
    return shaped(mix.samples, rough)


# --- Small things -------------------------------------------------------------------------------


def clang(rng, pitch, seconds=0.5, dull=1.0):
    """Metal on something hard; `dull` below 1 stops it sooner."""
    partials = [(pitch * ratio * rng.uniform(0.99, 1.01), rng.uniform(0.5, 1.0) / (i + 1),
                 dull * 0.12 / (1 + 0.4 * i))
                for i, ratio in enumerate((1.0, 1.52, 2.36, 3.17, 4.43))
                if pitch * ratio < 0.45 * RATE]
    mix = Mix(seconds)
    mix.add(ringing(seconds, partials))
    mix.add(shaped(highpass(noise(rng, 0.02), 2000), decay(0.003)), gain=0.5)
    return mix.samples


def dropped(rng, pitch, seconds=0.9):
    """A metal thing falls and bounces, quicker and quicker."""
    mix = Mix(seconds)
    at, pause, gain = 0.0, 0.17, 1.0
    while at < seconds - 0.1 and gain > 0.05:
        mix.add(clang(rng, pitch * rng.uniform(0.94, 1.06), 0.3, 0.6), at=at, gain=gain)
        at += pause
        pause *= 0.68
        gain *= 0.7
    return mix.samples


def thud(rng, pitch=80, seconds=0.3):
    """Something heavy and soft meets the floor."""
    mix = Mix(seconds)
    mix.add(shaped(sine(curve((0, 1.7 * pitch), (0.08, pitch)), seconds), decay(0.06, 0.003)), gain=1.0)
    mix.add(shaped(lowpass(noise(rng, seconds), 500), decay(0.03, 0.002)), gain=1.2)
    return mix.samples


def footstep(rng):
    """Heel, then sole, of a good shoe on a wooden floor."""
    mix = Mix(0.3)
    mix.add(shaped(bandpass(noise(rng, 0.08), 1500, 1.2), decay(0.007)), gain=1.0)
    mix.add(thud(rng, 110, 0.15), gain=0.35)
    sole = bandpass(noise(rng, 0.1), 2400, 0.8)
    mix.add(shaped(sole, curve((0, 0), (0.02, 1), (0.09, 0))), at=0.085, gain=0.35)
    mix.add(thud(rng, 140, 0.1), at=0.09, gain=0.2)
    return mix.samples


def crackle(rng, seconds, each_second):
    """Sparks: very short ticks at random times."""
    out = [0.0] * count(seconds)
    for i in range(len(out)):
        if rng.random() < each_second / RATE:
            out[i] = rng.uniform(0.3, 1.0) * (1 if rng.random() < 0.5 else -1)
    return bandpass(out, 3500, 0.8)
