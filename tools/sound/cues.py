"""The sound cues, one function each: what is heard, and when.

Every function takes its own generator of chance and returns the mix; CUES at the end names the files.
Only the balance within a mix matters here: mastering brings all cues to one loudness.
"""

import math
import random

from parts import (car_engine, clang, crackle, debris, dropped, explosion, footstep, gunshot, helicopter,
                   ricochet, thud, tyres, voice)
from synth import (Mix, bandpass, brown_noise, curve, decay, echoes, highpass, lowpass, noise, puffs, reverb,
                   ringing, saturated, saw, shaped, sine, wander)


def click(rng):
    """The key of an office machine, down and up."""
    mix = Mix(0.1)
    for at, gain, pitch in ((0.004, 1.0, 1.0), (0.052, 0.55, 1.25)):
        tick = highpass(noise(rng, 0.02), 1500)
        mix.add(shaped(tick, decay(0.0025, 0.0002)), at=at, gain=gain)
        partials = ((240 * pitch, 0.8, 0.012), (1750 * pitch, 0.7, 0.007), (3300 * pitch, 0.5, 0.004))
        body = ringing(0.045, partials)
        mix.add(body, at=at, gain=gain)
    return mix.samples


# --- Assassinations -----------------------------------------------------------------------------


def rifle(rng):
    """A bolt is worked, somebody breathes out, one shot; the hills repeat it."""
    mix = Mix(4.0)
    for at, pitch in ((0.05, 1500), (0.17, 1150), (0.42, 1300), (0.52, 950)):
        mix.add(clang(rng, pitch, 0.2, 0.25), at=at, gain=0.22)
        mix.add(thud(rng, 210, 0.1), at=at, gain=0.12)
    slide = bandpass(noise(rng, 0.2), curve((0, 1800), (0.2, 3000)), 2.0)
    mix.add(shaped(slide, curve((0, 0), (0.1, 1), (0.2, 0))), at=0.22, gain=0.16)
    hills = ((0.34, 0.5, 2600), (0.61, 0.3, 1700), (0.98, 0.24, 1200), (1.45, 0.15, 900), (1.9, 0.09, 700))
    shot = echoes(gunshot(rng, 1.3), hills, 2.4)
    mix.add(reverb(shot, 2.6, 0.5, damping=0.5, size=2.2), at=1.05)
    return shaped(mix.samples, curve((3.2, 1), (4.0, 0)))


def automatic_weapon(rng):
    """Two bursts from a doorway, the second until the drum is empty; cases roll on the pavement."""
    street = Mix(3.6)
    at = 0.05
    for shots, pause in ((5, 0.32), (11, 0.0)):
        for _ in range(shots):
            street.add(gunshot(rng, 0.62), at=at, gain=rng.uniform(0.85, 1.0))
            at += 0.088 * rng.uniform(0.96, 1.04)  # nearly 700 a minute
        at += pause
    for shot_at in (0.36, 1.05, 1.5):
        street.add(ricochet(rng, 0.55), at=shot_at, gain=0.3)
    mix = Mix(3.6)
    mix.add(reverb(street.samples, 1.0, 0.35, size=1.3))
    for i in range(9):
        mix.add(dropped(rng, rng.uniform(2700, 3600), 0.5), at=0.45 + 0.26 * i, gain=0.13 if i < 6 else 0.2)
    return shaped(mix.samples, curve((2.9, 1), (3.6, 0)))


def bomb(rng):
    """A match, a fuse that spits and hurries, a moment of hope, the bomb."""
    mix = Mix(4.8)
    scrape = bandpass(noise(rng, 0.35), curve((0, 2200), (0.1, 4500), (0.35, 3200)), 0.9)
    mix.add(shaped(scrape, curve((0, 0), (0.05, 1), (0.12, 0.7), (0.35, 0))), gain=0.8)
    hiss = highpass(bandpass(noise(rng, 1.75), curve((0, 4200), (1.75, 5600)), 0.8), 2200)
    sputter = wander(rng, 0.1, 1.0, 0.045)
    growing = curve((0, 0), (0.2, 0.5), (1.7, 1.0), (1.75, 0))
    mix.add(shaped(hiss, lambda t: sputter(t) * growing(t)), at=0.25, gain=0.7)
    mix.add(shaped(crackle(rng, 1.75, 60), growing), at=0.25, gain=5.0)
    mix.add(reverb(explosion(rng, 2.6), 1.6, 0.3, size=2.0), at=2.2, gain=1.0)
    return shaped(mix.samples, curve((3.9, 1), (4.8, 0)))


def knife(rng):
    """Shoes in a corridor, a blade is drawn, it comes down; he falls, the knife after him."""
    corridor = Mix(4.2)
    for at, gain in ((0.05, 0.45), (0.55, 0.6), (1.0, 0.75), (1.36, 0.9)):
        corridor.add(footstep(rng), at=at, gain=gain)
    blade = ringing(0.7, ((3150, 0.5, 0.16), (4420, 0.4, 0.13), (6230, 0.35, 0.1), (7710, 0.25, 0.08)))
    steel = bandpass(noise(rng, 0.28), curve((0, 3200), (0.28, 7200)), 3.0)
    corridor.add(shaped(steel, curve((0, 0), (0.22, 1), (0.28, 0))), at=1.58, gain=0.55)
    corridor.add(shaped(blade, curve((0, 0), (0.02, 1))), at=1.82, gain=0.2)
    air = bandpass(noise(rng, 0.3), curve((0, 350), (0.16, 1900), (0.3, 600)), 1.6)
    corridor.add(shaped(air, curve((0, 0), (0.16, 1), (0.3, 0))), at=2.14, gain=1.1)
    corridor.add(thud(rng, 120), at=2.38, gain=1.1)
    corridor.add(shaped(bandpass(noise(rng, 0.12), 1100, 1.5), decay(0.03, 0.004)), at=2.38, gain=0.7)
    groan = voice(rng, "au", curve((0, 175), (0.1, 150), (0.42, 85)), 0.42, breath=0.35)
    corridor.add(shaped(groan, curve((0, 0), (0.03, 1), (0.2, 0.6), (0.42, 0))), at=2.46, gain=0.9)
    corridor.add(thud(rng, 65), at=2.98, gain=1.2)
    corridor.add(thud(rng, 85), at=3.13, gain=0.8)
    corridor.add(dropped(rng, 2300), at=3.22, gain=0.3)
    heard = reverb(corridor.samples, 1.1, 0.3, size=0.9)[:len(corridor.samples)]
    return shaped(heard, curve((3.7, 1), (4.2, 0)))


def cia(rng):
    """A large car stops too quickly, four shots from a pistol, the large car is not here any more."""
    street = Mix(5.0)
    arriving = car_engine(rng, 1.2, curve((0, 95), (1.0, 48), (1.2, 42)))
    street.add(shaped(arriving, curve((0, 0.1), (0.7, 0.5), (1.2, 0.3))), gain=0.8)
    street.add(shaped(tyres(rng, 0.95), curve((0, 0), (0.08, 0.8), (0.7, 1), (0.95, 0))), at=0.25, gain=0.8)
    idle = car_engine(rng, 1.6, 36)
    street.add(shaped(idle, curve((0, 0.9), (1.5, 1), (1.6, 0))), at=1.15, gain=0.22)
    for at in (1.5, 1.78, 2.28, 2.5):
        shot = echoes(gunshot(rng, 0.85, 8000), ((0.11, 0.35, 2400), (0.21, 0.2, 1500)), 0.3)
        street.add(shot, at=at, gain=1.0)
    leaving = car_engine(rng, 2.3, curve((0, 45), (0.9, 150), (0.98, 92), (2.3, 170)))
    farther = curve((0, 0.3), (0.3, 1), (1.0, 0.7), (2.2, 0.05), (2.3, 0))
    street.add(shaped(leaving, farther), at=2.7, gain=0.75)
    street.add(shaped(tyres(rng, 0.8), curve((0, 0), (0.06, 1), (0.5, 0.7), (0.8, 0))), at=2.75, gain=0.7)
    heard = reverb(street.samples, 1.0, 0.25, size=1.4)[:len(street.samples)]
    return shaped(heard, curve((4.5, 1), (5.0, 0)))


# --- Uprisings ----------------------------------------------------------------------------------


def single_shouts(rng, seconds, how_many):
    """Everybody for himself, near and far."""
    near, far = Mix(seconds), Mix(seconds)
    for _ in range(how_many):
        length = rng.uniform(0.22, 0.7)
        start = rng.choice((150, 185, 220, 260, 310, 350)) * rng.uniform(0.94, 1.06)
        top, end = start * rng.uniform(1.05, 1.3), start * rng.uniform(0.7, 0.95)
        pitch = curve((0, start), (0.35 * length, top), (length, end))
        vowels = rng.choice(("a", "o", "e", "ae", "oa", "ea", "uo", "aea"))
        shout = shaped(voice(rng, vowels, pitch, length),
                       curve((0, 0), (0.05, 1), (0.7 * length, 0.8), (length, 0)))
        place = near if rng.random() < 0.3 else far
        place.add(shout, at=rng.uniform(0, seconds - 0.3), gain=rng.uniform(0.3, 0.8))
    return near.samples, lowpass(far.samples, 1900)


def chant(rng, seconds, period):
    """A slogan of two syllables and a pause, almost together."""
    mix = Mix(seconds)
    for _ in range(13):
        own_pitch = rng.choice((140, 165, 196, 233, 280)) * rng.uniform(0.96, 1.04)
        late = rng.uniform(-0.03, 0.05)
        for beat in range(int(seconds / period)):
            for vowels, offset, length, rise in (("ue", 0.0, 0.24, 1.0), ("a", 0.29, 0.38, 1.18)):
                pitch = curve((0, own_pitch * rise), (length, own_pitch * rise * 0.88))
                syllable = shaped(voice(rng, vowels, pitch, length),
                                  curve((0, 0), (0.04, 1), (0.6 * length, 0.8), (length, 0)))
                at = max(0.0, 0.12 + beat * period + offset + late + rng.uniform(-0.015, 0.015))
                mix.add(syllable, at=at, gain=0.5)
    return mix.samples


def crowd(rng):
    """Some thousands of people on a square who have learnt a slogan; whistles, saucepans, feet."""
    seconds, period = 4.8, 0.92
    square = Mix(seconds)
    near, far = single_shouts(rng, seconds, 150)
    square.add(near, gain=0.5)
    square.add(far, gain=0.7)
    square.add(chant(rng, seconds, period), gain=0.75)
    murmur = bandpass(brown_noise(rng, seconds), 520, 0.6)
    square.add(shaped(murmur, wander(rng, 0.6, 1.0, 0.15)), gain=0.8)
    for at, low, high in ((0.7, 2100, 3000), (2.35, 1900, 2700), (3.5, 2200, 3200)):
        tone = sine(curve((0, low), (0.15, high), (0.3, high * 0.98), (0.45, low)), 0.45)
        square.add(shaped(tone, curve((0, 0), (0.05, 1), (0.35, 0.8), (0.45, 0))), at=at, gain=0.22)
    for beat in range(int(seconds / period)):
        for offset in (0.0, 0.29):
            at = beat * period + offset
            square.add(clang(rng, rng.uniform(700, 1100), 0.3, 0.4), at=0.14 + at, gain=0.2)
            square.add(thud(rng, 75), at=0.13 + at, gain=0.8)
    heard = reverb(square.samples, 1.3, 0.35, size=1.8)[:len(square.samples)]
    return shaped(heard, curve((0, 0.3), (0.35, 1), (4.1, 1), (4.8, 0)))


def bugle(rng):
    """A call to the flag, by somebody who learnt it yesterday; the last note has seen the enemy."""
    mix = Mix(1.75)
    notes = ((0.0, 0.14, 523), (0.16, 0.14, 523), (0.32, 0.2, 659), (0.55, 0.2, 523), (0.78, 0.95, 784))
    for at, length, pitch in notes:
        wobble = 5.5 if length > 0.5 else 0.0
        end = pitch * (0.72 if wobble else 1.0)
        path = curve((0, pitch * 0.97), (0.03, pitch), (0.45, pitch), (length, end))
        tone = saw(lambda t: path(t) * (1 + 0.012 * math.sin(2 * math.pi * wobble * t)), length)
        bright = curve((0, 900), (0.05, 3800), (0.8 * length, 2600), (length, 900))
        loud = curve((0, 0), (0.03, 1), (0.75 * length, 0.8), (length, 0))
        mix.add(shaped(bandpass(lowpass(tone, bright), 1300, 0.4), loud), at=at)
    return mix.samples


def civil_war(rng):
    """A bugle, then rifles from both ends of the street, a machine gun, a mortar shell on its way."""
    mix = Mix(5.0)
    mix.add(reverb(bugle(rng), 1.0, 0.3), at=0.05, gain=0.7)
    battle = Mix(5.0)
    for _ in range(17):
        near = rng.random() < 0.35
        shot = gunshot(rng, rng.uniform(0.7, 1.1), 7000 if near else 2200)
        battle.add(shot, at=rng.uniform(1.2, 4.0), gain=0.9 if near else 0.5)
    for start, shots in ((1.75, 6), (2.85, 8)):
        for i in range(shots):
            battle.add(gunshot(rng, 0.6, 3500), at=start + 0.1 * i, gain=0.6)
    battle.add(ricochet(rng), at=2.1, gain=0.25)
    fall = curve((0, 2100), (1.2, 750))
    shell = [x + y for x, y in zip(sine(fall, 1.2), bandpass(noise(rng, 1.2), fall, 10))]
    battle.add(shaped(shell, curve((0, 0), (0.9, 1), (1.2, 0.9))), at=2.55, gain=0.3)
    battle.add(explosion(rng, 1.3), at=3.75, gain=1.1)
    mix.add(reverb(battle.samples, 1.2, 0.3, size=1.7))
    return shaped(mix.samples, curve((4.4, 1), (5.0, 0)))


# --- The helicopter -----------------------------------------------------------------------------


def helicopter_leaves(rng):
    """The rotor gains speed, the machine lifts, passes over the roof and is soon a rumour."""
    seconds = 5.0
    # Going away the thumps come later and later: the pitch drops by some percent.
    rate = curve((0, 9.0), (1.0, 11.8), (2.4, 12.2), (3.2, 11.2), (5.0, 10.8))
    machine = helicopter(rng, seconds, rate, curve((0, 0.6), (1.0, 1.2), (5.0, 1.0)))
    air = lowpass(machine, curve((0, 4500), (2.2, 9000), (3.2, 3000), (5.0, 450)))
    return shaped(air, curve((0, 0), (0.25, 0.4), (2.2, 1.0), (2.6, 0.95), (4.0, 0.4), (5.0, 0)))


def helicopter_falls(rng):
    """Two seconds of hope, a hit, a motor that stops in anger, a long way down, the ground."""
    seconds, hit, ground = 5.0, 1.55, 3.75
    mix = Mix(seconds)
    rate = curve((0, 11.2), (hit, 11.6), (hit + 0.3, 9.5), (2.6, 8.0), (ground, 5.2))
    power = curve((0, 0.9), (hit, 1.0), (hit + 0.05, 0.3), (hit + 0.3, 0.8), (hit + 0.5, 0.2),
                  (2.4, 0.6), (2.6, 0.1))
    near = curve((0, 0), (0.2, 1), (ground - 0.4, 0.7), (ground, 0.8))
    mix.add(shaped(helicopter(rng, ground, rate, power), near))
    for i in range(3):
        mix.add(gunshot(rng, 0.8, 3000), at=hit - 0.42 + 0.12 * i, gain=0.6)
    mix.add(explosion(rng, 0.9), at=hit, gain=0.8)
    mix.add(clang(rng, 410, 0.8, 2.0), at=hit + 0.02, gain=0.5)

    def spin(t):  # the wail of a machine that turns about itself as it falls
        return (1450 - 330 * t) * (1 + 0.09 * math.sin(2 * math.pi * 2.6 * t))

    length = ground - hit - 0.2
    wail = [0.3 * x + y for x, y in zip(saw(spin, length), bandpass(noise(rng, length), spin, 8))]
    wail = bandpass(wail, spin, 1.2)
    mix.add(shaped(wail, curve((0, 0), (0.4, 0.6), (length - 0.05, 1), (length, 0))), at=hit + 0.2, gain=0.5)
    mix.add(explosion(rng, 1.25), at=ground, gain=1.2)
    for at, pitch in ((0.08, 330), (0.3, 520), (0.47, 780), (0.7, 610), (0.82, 940)):
        mix.add(clang(rng, pitch, 0.4, 0.8), at=ground + at, gain=0.35)
    return shaped(mix.samples, curve((4.5, 1), (5.0, 0)))


# --- Disasters ----------------------------------------------------------------------------------


def twister(rng):
    """A train that needs no rails: the roar comes, howls round the house twice a second, goes."""
    seconds = 5.0
    mix = Mix(seconds)
    swirl_phase = wander(rng, 0.9, 1.1, 0.5)

    def swirl(depth, turns):
        return lambda t: 1 - depth * (0.5 + 0.5 * math.sin(2 * math.pi * turns * t * swirl_phase(t)))

    roar = saturated(lowpass(brown_noise(rng, seconds), 240), 2.5)
    mix.add(shaped(roar, swirl(0.35, 1.9)), gain=0.55)
    gusts = bandpass(noise(rng, seconds), wander(rng, 350, 950, 0.35), 1.1)
    mix.add(shaped(gusts, swirl(0.6, 1.9)), gain=0.55)
    # Howls: the wind blows across every hole of the house.
    for low, high, every, gain in ((380, 640, 0.45, 0.9), (610, 1050, 0.4, 0.8), (900, 1500, 0.5, 0.4)):
        path = wander(rng, low, high, every)
        rising = curve((0, 0.8), (2.7, 1.15), (5.0, 0.8))
        howl = bandpass(noise(rng, seconds), lambda t: path(t) * rising(t), 22)
        mix.add(shaped(howl, swirl(0.5, 1.9)), gain=gain * 2.6)
    mix.add(shaped(highpass(noise(rng, seconds), 3200), swirl(0.7, 1.9)), gain=0.07)
    for at in (1.5, 2.2, 2.6, 2.9, 3.4):
        mix.add(clang(rng, rng.uniform(260, 520), 0.5, 0.7), at=at, gain=0.22)
        mix.add(debris(rng, 0.5, 6, 0.3), at=at, gain=0.5)
    return shaped(mix.samples, curve((0, 0), (0.3, 0.25), (2.5, 1), (3.2, 1), (4.4, 0.3), (5.0, 0)))


def quake(rng):
    """The ground shudders, the crockery reports it, the plaster obeys."""
    seconds = 4.5
    mix = Mix(seconds)
    strength = curve((0, 0.15), (0.25, 0.75), (1.0, 1), (2.6, 0.9), (3.6, 0.4), (4.5, 0))
    jolts = wander(rng, 0.25, 1.0, 0.07)  # about seven jolts a second

    def shaking(t):
        return strength(t) * jolts(t)

    deep = saturated(lowpass(brown_noise(rng, seconds), 75, 1.5), 4.0)
    mix.add(shaped(deep, strength), gain=0.6)
    # The same shaking an octave or two higher, for small loudspeakers.
    grinding = bandpass(saturated(lowpass(brown_noise(rng, seconds), 190), 6.0), 260, 0.6)
    mix.add(shaped(grinding, shaking), gain=2.0)
    stones = bandpass(crackle(rng, seconds, 160), 850, 0.8)
    mix.add(shaped(stones, shaking), gain=11.0)
    creak = puffs(wander(rng, 28, 95, 0.12), 1.6, 14)
    creaking = curve((0, 0), (0.2, 1), (1.3, 0.8), (1.6, 0))
    mix.add(shaped(bandpass(creak, 900, 2.5), creaking), at=1.3, gain=0.9)
    t = 0.3
    while t < 3.7:
        mix.add(clang(rng, rng.uniform(2100, 3900), 0.25, 0.5), at=t, gain=0.2 * shaking(t))
        t += rng.uniform(0.03, 0.13)
    for at in (0.9, 1.9, 2.5):
        mix.add(thud(rng, 60), at=at, gain=1.0)
        mix.add(debris(rng, 1.3, 40, 0.3), at=at, gain=1.0)
    return shaped(reverb(mix.samples, 0.9, 0.2)[:len(mix.samples)], curve((3.7, 1), (4.5, 0)))


# The game's own file names, in its own spelling.
CUES = {
    "click": click,
    "assasin1": rifle,
    "assasin2": automatic_weapon,
    "assasin3": bomb,
    "assasin4": knife,
    "Assasin5": cia,
    "croud": crowd,
    "rev": civil_war,
    "heliOK": helicopter_leaves,
    "heliNo": helicopter_falls,
    "twister": twister,
    "quake": quake,
}


def performed(name):
    """The mix of a cue. The seed is the name: a change to one cue leaves the others as they are."""
    return CUES[name](random.Random(name))
