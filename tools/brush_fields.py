# SPDX-License-Identifier: MIT
"""Fields of numbers that brush papers and tips are made of, and the PNG bytes that they become.

A field is a numpy array, rows downwards. Those called seamless go on at the other edge. All come out the same every
time: random numbers are our own, so that no release of a library changes a brush.
"""

import struct
import zlib

import numpy as np


def units(seed, count):
    """This many random numbers, from 0 to 1 without it; those of two seeds have nothing to do with each other."""
    state = np.arange(count, dtype=np.uint64) + np.uint64((seed * 0x9E3779B9 + 1 << 24) % 2**64)
    for shift, factor in ((30, 0xBF58476D1CE4E5B9), (27, 0x94D049BB133111EB), (31, 1)):
        state = (state ^ (state >> np.uint64(shift))) * np.uint64(factor)
    return (state >> np.uint64(11)).astype(float) / 2.0**53


def between(seed, count, low, high):
    return low + (high - low) * units(seed, count)


def bells(seed, count):
    """Random numbers around 0 of deviation 1."""
    u = units(seed, 2 * count)
    return np.sqrt(-2 * np.log(1 - u[:count])) * np.cos(2 * np.pi * u[count:])


def smoothstep(low, high, value):
    t = np.clip((value - low) / (high - low), 0, 1)
    return t * t * (3 - 2 * t)


def _frequencies(side):
    """Cycles a side, across and down, of each place of a spectrum."""
    return np.fft.fftfreq(side) * side, (np.fft.fftfreq(side) * side)[:, None]


def unit(field):
    """The field around 0 with deviation 1."""
    field = field - field.mean()
    return field / field.std()


def tooth(side, seed, longest, shortest, slope):
    """Seamless noise of random phases with grains of all sizes, around 0 with deviation 1.

    longest, shortest   wavelengths in pixels beyond which there is little
    slope               how fast the strength falls from long to short ones; 1 breaks up, 2 is smooth
    """
    across, down = _frequencies(side)
    reach = np.hypot(across, down) / side
    strength = np.maximum(reach, 1 / side) ** -slope
    strength *= np.exp(-(reach * shortest) ** 4) * (1 - np.exp(-(reach * longest) ** 4))
    return unit(np.fft.ifft2(np.fft.fft2(bells(seed, side * side).reshape(side, side)) * strength).real)


def soft(side, seed, wide, tall=None):
    """Seamless noise without fine detail, blurred by a bell of this deviation; around 0 with deviation 1."""
    return unit(blurred(bells(seed, side * side).reshape(side, side), wide, tall))


def blurred(field, wide, tall=None):
    """A seamless field, by a bell of this deviation in pixels."""
    across, down = _frequencies(field.shape[0])
    side = field.shape[0]
    bell = np.exp(-2 * np.pi**2 * ((across * wide / side) ** 2 + (down * (wide if tall is None else tall) / side) ** 2))
    return np.fft.ifft2(np.fft.fft2(field) * bell).real


def evened(field, reach):
    """Without what is larger than `reach` pixels, and everywhere as rough: nothing of a seamless field stands out."""
    field = field - blurred(field, reach)
    return unit(field / np.sqrt(blurred(field * field, reach)))


def ranked(field):
    """The same order, every value from 0 to 1 as frequent."""
    places = np.empty(field.size)
    places[np.argsort(field, axis=None, kind="stable")] = np.arange(field.size)
    return ((places + 0.5) / field.size).reshape(field.shape)


# ---- PNG

def _chunk(kind, data):
    body = kind + data
    return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))


def _rows(pixels):
    """PNG's rows of bytes: the least that remains where each pixel is guessed from its neighbours by Paeth's rule."""
    now = pixels.astype(np.int16)
    left, up, corner = np.zeros_like(now), np.zeros_like(now), np.zeros_like(now)
    left[:, 1:], up[1:], corner[1:, 1:] = now[:, :-1], now[:-1], now[:-1, :-1]
    far = [abs(left + up - corner - near) for near in (left, up, corner)]
    guess = np.where((far[0] <= far[1]) & (far[0] <= far[2]), left, np.where(far[1] <= far[2], up, corner))
    rest = ((now - guess) % 256).reshape(len(pixels), -1)
    return np.insert(rest, 0, 4, axis=1).astype(np.uint8).tobytes()


def png(field, step):
    """An image of a field from 0 to 1, in greys `step` apart from white down; of four, red, green, blue and alpha."""
    most = 255 // step
    pixels = (255 - step * np.rint((1 - np.clip(np.asarray(field), 0, 1)) * most)).astype(np.uint8)
    pixels = pixels[None] if pixels.ndim == 2 else pixels
    if len(pixels) == 4:
        pixels[:3] *= pixels[3] > 0  # what is not there has no colour to store
    pixels = pixels.transpose(1, 2, 0)
    height, width, channels = pixels.shape
    header = struct.pack(">IIBBBBB", width, height, 8, {1: 0, 4: 6}[channels], 0, 0, 0)
    rows = _rows(pixels)
    presses = [zlib.compressobj(9, zlib.DEFLATED, 15, 9, way) for way in (zlib.Z_DEFAULT_STRATEGY, zlib.Z_FILTERED)]
    packed = min((press.compress(rows) + press.flush() for press in presses), key=len)
    return b"\x89PNG\r\n\x1a\n" + _chunk(b"IHDR", header) + _chunk(b"IDAT", packed) + _chunk(b"IEND", b"")
