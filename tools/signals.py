# SPDX-License-Identifier: MIT
"""Test signals, and measurements of the audio that arrives at the devices."""

import struct
import wave

import numpy

RATE = 48000


def sine(frequency, amplitude, seconds, rate=RATE, channels=2):
    """The same sine on every channel, as frames x channels."""
    time = numpy.arange(int(seconds * rate)) / rate
    return numpy.repeat((amplitude * numpy.sin(2 * numpy.pi * frequency * time))[:, None], channels, axis=1)


def ramp(seconds, first=0.4, last=0.6, rate=RATE, channels=2):
    """Rises steadily without a change of sign: a sample's value identifies its position in the file."""
    return numpy.repeat(numpy.linspace(first, last, int(seconds * rate))[:, None], channels, axis=1)


def noise(amplitude, seconds, rate=RATE, channels=2, seed=1):
    return numpy.random.default_rng(seed).uniform(-amplitude, amplitude, (int(seconds * rate), channels))


def write(path, samples, rate=RATE):
    """Writes 16-bit PCM; returns the samples as a player reads them, in float32."""
    pcm = numpy.round(samples * 32767).astype("<i2")
    with wave.open(str(path), "wb") as file:
        file.setnchannels(pcm.shape[1])
        file.setsampwidth(2)
        file.setframerate(rate)
        file.writeframes(pcm.tobytes())
    return (pcm / numpy.float32(32768)).astype(numpy.float32)


def read(path, channels=2):
    """Reads a recording of 32-bit floats, even if its header was not finished."""
    data = path.read_bytes()
    start = data.find(b"data")
    if start < 0:
        return numpy.zeros((0, channels), numpy.float32)
    body = data[start + 8:]
    body = body[:len(body) - len(body) % (4 * channels)]
    return numpy.frombuffer(body, "<f4").reshape(-1, channels)


def readWave24(path):
    """A valid 24-bit stereo WAVE file: its rate in hertz and its samples as integers, frames x 2."""
    data = path.read_bytes()
    if data[:4] != b"RIFF" or data[8:12] != b"WAVE":
        raise ValueError(f"{path} is no WAVE file")
    if struct.unpack_from("<I", data, 4)[0] != len(data) - 8:
        raise ValueError(f"{path} says it has another length")
    place, rate, body = 12, None, None
    while place + 8 <= len(data):
        name, size = data[place:place + 4], struct.unpack_from("<I", data, place + 4)[0]
        if name == b"fmt ":
            _, channels, rate, _, align, bits = struct.unpack_from("<HHIIHH", data, place + 8)
            if (channels, align, bits) != (2, 6, 24):
                raise ValueError(f"{path} has {channels} channels, {align} bytes a frame, {bits} bits a sample")
        elif name == b"data":
            body = data[place + 8:place + 8 + size]
        place += 8 + size + size % 2
    if rate is None or body is None or len(body) % 6:
        raise ValueError(f"{path} lacks a format, or its samples")
    raw = numpy.frombuffer(body, numpy.uint8).reshape(-1, 3).astype(numpy.int32)
    return rate, ((raw[:, 0] << 8 | raw[:, 1] << 16 | raw[:, 2] << 24) >> 8).reshape(-1, 2)


def steady(samples, frequency, rate=RATE):
    """The longest run of whole periods in the middle half of the non-silent part."""
    loud = numpy.flatnonzero(numpy.abs(samples).max(axis=1) > 0)
    if not len(loud):
        return samples[:0]
    first, last = loud[0], loud[-1]
    length = last - first
    period = rate / frequency
    count = int(length / 2 / period) * period
    begin = first + length // 4
    return samples[begin:begin + int(round(count))]


def amplitude(samples, frequency, rate=RATE):
    """The amplitude of one frequency on each channel, by correlation over whole periods; linear."""
    time = numpy.arange(len(samples)) / rate
    carrier = numpy.exp(-2j * numpy.pi * frequency * time)
    return 2 * numpy.abs((samples * carrier[:, None]).mean(axis=0)) if len(samples) else numpy.zeros(samples.shape[1])


def typicalAmplitude(samples, frequency, rate=RATE, window=0.02):
    """The median of the amplitudes of many short windows, so that a single glitch of a player does not count.

    `window`: seconds, whole periods of the frequency.
    """
    size = round(window * rate)
    windows = [samples[begin:begin + size] for begin in range(0, len(samples) - size + 1, size)]
    return numpy.median([amplitude(part, frequency, rate) for part in windows], axis=0)


def decibels(value):
    return 20 * numpy.log10(numpy.maximum(value, 1e-12))


def delay(reference, delayed):
    """By how many frames `delayed` lags behind `reference`, by correlation."""
    size = 1 << (len(reference) + len(delayed)).bit_length()
    spectrum = numpy.fft.rfft(delayed, size) * numpy.conj(numpy.fft.rfft(reference, size))
    place = int(numpy.argmax(numpy.fft.irfft(spectrum, size)))
    return place if place < size // 2 else place - size


def stretches(samples):
    """Segments of a recording of a ramp from 0.40 to 0.45, tapped at a quarter of its volume, by signal path.

    As (kind, first frame, frames, first value, last value). The level identifies the kind: "tapped" is 0.10 to 0.11,
    "direct" past the tap 0.40 to 0.45, "both" at once 0.50 and more, and "silent" nothing.
    """
    level = numpy.abs(samples)
    kinds = numpy.select([level < 0.005, level < 0.25, level < 0.475], ["silent", "tapped", "direct"], "both")
    edges = numpy.flatnonzero(numpy.concatenate(([True], kinds[1:] != kinds[:-1])))
    ends = numpy.append(edges[1:], len(kinds))
    return [(str(kinds[a]), int(a), int(b - a), float(samples[a]), float(samples[b - 1])) for a, b in zip(edges, ends)]
