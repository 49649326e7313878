#!/usr/bin/env python3
"""Synthesises the ten sounds of the game into the folder of this script.

Run it with any Python 3.8 or later; nothing else is needed:

    python3 make_sounds.py                  write all ten
    python3 make_sounds.py Hint.wav ...     write only these

Every sound is 16-bit mono PCM. All noise comes from seeded generators, so the same files come out
of every run. To change a sound, change its function or its row in SOUNDS and run the script again.
"""

import array
import math
import random
import sys
import wave
from pathlib import Path

SAMPLE_RATE = 22050
# Every sound starts and ends at zero.
FADE_IN_SECONDS = 0.001
FADE_OUT_PART = 0.25  # of its length


# Building blocks. A sound is a list of floats; loudness is settled at the very end, by level().


def sample_count(seconds):
    return round(seconds * SAMPLE_RATE)


def semitones(frequency, steps):
    return frequency * 2 ** (steps / 12)


def line(start, end):
    """A glide from start to end that is even to the ear; takes a position 0..1 in the sound."""
    return lambda position: start * (end / start) ** position


def hump(position):
    """Rises from 0 to 1 and falls back to 0, without a corner."""
    return math.sin(math.pi * position) ** 2


def tone(seconds, pitch, partials):
    """A sum of sines. pitch: Hz, or a function of the position; partials: (ratio, gain) pairs."""
    count = sample_count(seconds)
    glide = pitch if callable(pitch) else line(pitch, pitch)
    samples = []
    phase = 0.0
    for i in range(count):
        samples.append(sum(gain * math.sin(ratio * phase) for ratio, gain in partials))
        phase += math.tau * glide(i / count) / SAMPLE_RATE
    return samples


def struck(seconds, modes):
    """A struck body: each mode (Hz, gain, decay in seconds) rings and dies on its own."""
    return mix(
        seconds,
        [(0.0, gain, plucked(tone(seconds, hertz, [(1, 1)]), 0.001, decay))
         for hertz, gain, decay in modes],
    )


def noise(seconds, seed):
    generator = random.Random(seed)
    return [generator.uniform(-1.0, 1.0) for _ in range(sample_count(seconds))]


def band(samples, centre, width):
    """Band-pass: a state variable filter with trapezoidal integrators, which stays stable while
    its centre moves. centre: Hz, or a function of the position; width: 1 / Q."""
    glide = centre if callable(centre) else line(centre, centre)
    low = mid = 0.0
    filtered = []
    for i, sample in enumerate(samples):
        g = math.tan(math.pi * glide(i / len(samples)) / SAMPLE_RATE)
        passed = (mid + g * (sample - low)) / (1.0 + g * (g + width))
        mid, low = 2.0 * passed - mid, low + 2.0 * g * passed
        filtered.append(width * passed)
    return filtered


def plucked(samples, attack, decay):
    """A short even attack, then an exponential decay; both in seconds."""
    shaped = []
    for i, sample in enumerate(samples):
        time = i / SAMPLE_RATE
        shaped.append(sample * min(1.0, time / attack) * math.exp(-max(0.0, time - attack) / decay))
    return shaped


def shaped_by(samples, envelope):
    """envelope: a function of the position 0..1."""
    return [sample * envelope(i / len(samples)) for i, sample in enumerate(samples)]


def mix(seconds, layers):
    """layers: (start in seconds, gain, samples); what reaches past the end is cut off."""
    mixed = [0.0] * sample_count(seconds)
    for start, gain, samples in layers:
        first = sample_count(start)
        for i, sample in enumerate(samples[: len(mixed) - first], first):
            mixed[i] += gain * sample
    return mixed


def chimed(seconds, partials, attack, notes):
    """Notes that ring on over each other; notes: (start, gain, Hz, decay)."""
    return mix(
        seconds,
        [(start, gain, plucked(tone(seconds - start, hertz, partials), attack, decay))
         for start, gain, hertz, decay in notes],
    )


def room(samples, wet):
    """A small, dry hall: four combs of unrelated lengths, each a little darker on every round."""
    echoed = list(samples)
    for seconds in (0.0297, 0.0371, 0.0411, 0.0437):
        ring = [0.0] * sample_count(seconds)
        damped = 0.0
        for i, sample in enumerate(samples):
            slot = i % len(ring)
            damped += 0.5 * (ring[slot] - damped)
            echoed[i] += wet * ring[slot]
            ring[slot] = sample + 0.72 * damped
    return echoed


def pressed(samples, drive):
    """Rounds off the peaks that stand out, so that the rest can be heard beside them."""
    peak = max(abs(sample) for sample in samples)
    return [math.tanh(drive * sample / peak) for sample in samples]


def level(samples, peak_db):
    """Takes out the offset, fades both ends to zero and sets the peak, in dB to full scale."""
    offset = sum(samples) / len(samples)
    last = len(samples) - 1
    rise = FADE_IN_SECONDS * SAMPLE_RATE
    fall = FADE_OUT_PART * last
    faded = []
    for i, sample in enumerate(samples):
        fade = min(1.0, i / rise, (last - i) / fall)
        faded.append((sample - offset) * fade * fade * (3.0 - 2.0 * fade))
    gain = 32767 * 10 ** (peak_db / 20) / max(abs(s) for s in faded)
    return array.array("h", (round(gain * s) for s in faded))


# The sounds.

BELL = [(1, 1.0), (2, 0.35), (2.76, 0.12), (4.07, 0.05)]
MALLET = [(1, 1.0), (2, 0.22), (3, 0.10), (4, 0.04)]
REED = [(1, 1.0), (2, 0.45), (3, 0.28), (4, 0.12), (5, 0.06)]
VOICE = [(1, 1.0), (2, 0.40), (3, 0.12), (4, 0.06)]


def clap(person, hertz, width, seed):
    """One pair of hands: a short burst in the colour of that person, over a duller slap."""
    burst = plucked(noise(0.09, seed), 0.0015, 0.010 + 0.006 * person.random())
    return mix(0.09, [(0.0, 1.0, band(burst, hertz, width)), (0.0, 0.5, band(burst, 520, 1.0))])


def applause():
    """A roomful of people, each with a pace and a colour of their own, who start one after the
    other, clap together for a moment and stop one after the other."""
    seconds = 2.0
    claps = []
    for number in range(20):
        person = random.Random(1000 + number)
        hertz = person.uniform(850, 2300)
        width = person.uniform(0.5, 1.1)
        loudness = person.uniform(0.35, 1.0)
        pace = person.uniform(0.155, 0.235)
        time = 0.01 + person.uniform(0.0, 0.40)
        end = person.uniform(1.15, 1.80)
        while time < end:
            swell = min(1.0, 0.35 + time / 0.5, 0.15 + (1.85 - time) / 0.8)
            hit = clap(person, hertz * person.uniform(0.93, 1.07), width, person.getrandbits(32))
            claps.append((time, loudness * swell * person.uniform(0.7, 1.0), hit))
            time += pace * person.uniform(0.92, 1.08)
    return pressed(room(mix(seconds, claps), 0.10), 1.6)


def discard():
    """One stroke of a dry brush."""
    stroke = band(noise(0.07, 21), line(3600, 2000), 0.7)
    return shaped_by(stroke, lambda position: hump(position**0.45))


def assign():
    """A piece of wood set down on wood."""
    wood = struck(0.18, [(590, 1.0, 0.030), (1240, 0.45, 0.016), (2310, 0.20, 0.008)])
    knock = band(plucked(noise(0.03, 31), 0.001, 0.004), 1500, 0.8)
    return mix(0.18, [(0.0, 1.0, wood), (0.0, 0.8, knock)])


def reset_cell():
    return plucked(tone(0.34, line(622, 311), MALLET), 0.012, 0.11)


def solution():
    """A C major chord from the bottom up; its last note rings longest."""
    notes = [(0.00, 1.0, 523.25, 0.100), (0.08, 1.0, 659.26, 0.128), (0.16, 1.0, 783.99, 0.156),
             (0.24, 1.0, 1046.50, 0.184)]
    return chimed(0.95, MALLET, 0.006, notes)


def label():
    tick = struck(0.04, [(1750, 1.0, 0.006), (3100, 0.35, 0.003)])
    return mix(0.04, [(0.0, 1.0, tick), (0.0, 0.5, band(noise(0.005, 51), 2500, 1.0))])


def undo_redo():
    """Swishes up and, mirrored, back again: for steps taken back and for steps taken again."""
    there = band(noise(0.12, 61), line(600, 2600), 0.6)
    there = shaped_by(there, lambda position: hump(position / 2))
    return there + there[::-1]


def hint():
    """Two bells a fourth apart. Short, for it can follow itself within a tenth of a second."""
    return chimed(0.6, BELL, 0.004, [(0.0, 0.8, 880.00, 0.09), (0.09, 1.0, 1174.66, 0.13)])


def error():
    """Two low notes, the second a third deeper; enough overtones for the speakers of a laptop."""
    return chimed(0.5, REED, 0.015, [(0.0, 0.9, 207.65, 0.07), (0.13, 1.0, 174.61, 0.10)])


def giggle():
    """Five quick notes, each of which slides up into a little laugh, and a last one that asks."""
    run = [(0.00, 0.085, 0, 3), (0.10, 0.085, 2, 3), (0.20, 0.085, -1, 3), (0.30, 0.085, 1, 3),
           (0.40, 0.085, -2, 3), (0.50, 0.170, 0, 7)]
    laughs = []
    for start, seconds, step, slide in run:
        hertz = semitones(659.26, step)
        voice = tone(seconds, line(hertz, semitones(hertz, slide)), VOICE)
        laughs.append((start, 1.0, shaped_by(voice, lambda position: hump(position**0.6))))
    return mix(0.68, laughs)


# File name, its function, peak in dB to full scale. The peaks differ so that the sounds seem
# equally loud: what is short or low peaks higher than what rings, what is heard often stays behind.
SOUNDS = [
    ("Applause.wav", applause, -6.0),
    ("Discard.wav", discard, -7.5),
    ("Assign.wav", assign, -5.0),
    ("ResetCell.wav", reset_cell, -8.5),
    ("Solution.wav", solution, -8.0),
    ("Label.wav", label, -7.0),
    ("UndoRedo.wav", undo_redo, -9.0),
    ("Hint.wav", hint, -9.0),
    ("Error.wav", error, -5.0),
    ("Giggle.wav", giggle, -10.0),
]


def write(path, samples):
    if sys.byteorder == "big":
        samples.byteswap()
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(samples.itemsize)
        file.setframerate(SAMPLE_RATE)
        file.writeframes(samples.tobytes())


def main(wanted):
    unknown = set(wanted) - {name for name, _, _ in SOUNDS}
    if unknown:
        sys.exit("make_sounds.py: no such sound: " + ", ".join(sorted(unknown)))
    folder = Path(__file__).resolve().parent
    for name, function, peak_db in SOUNDS:
        if not wanted or name in wanted:
            write(folder / name, level(function(), peak_db))


if __name__ == "__main__":
    main(sys.argv[1:])
