#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Prints the containers that tst_SimpleEncryptionProvider expects, made from docs/security.md alone.

Digests that Python lacks are written out: MD4 (RFC 1320) and Keccak with the padding of 2011, before SHA-3.
"""
import base64
import hashlib
import struct


def rotated(word, count, bits):
    count %= bits
    return (word << count | word >> bits - count) & (1 << bits) - 1


def md4(data):
    data += b"\x80" + bytes((55 - len(data)) % 64) + struct.pack("<Q", 8 * len(data))
    state = [0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476]
    rounds = [
        (lambda x, y, z: x & y | ~x & z, 0, [3, 7, 11, 19], list(range(16))),
        (lambda x, y, z: x & y | x & z | y & z, 0x5A827999, [3, 5, 9, 13], [4 * (i % 4) + i // 4 for i in range(16)]),
        (lambda x, y, z: x ^ y ^ z, 0x6ED9EBA1, [3, 9, 11, 15], [0, 8, 4, 12, 2, 10, 6, 14, 1, 9, 5, 13, 3, 11, 7, 15]),
    ]
    for start in range(0, len(data), 64):
        words = struct.unpack("<16I", data[start:start + 64])
        a, b, c, d = state
        for function, constant, shifts, order in rounds:
            for step, index in enumerate(order):
                total = (a + function(b, c, d) + words[index] + constant) & 0xFFFFFFFF
                a, b, c, d = d, rotated(total, shifts[step % 4], 32), b, c
        state = [(old + new) & 0xFFFFFFFF for old, new in zip(state, (a, b, c, d))]
    return struct.pack("<4I", *state)


def keccak_f(lanes):
    register = 1
    for _ in range(24):
        parity = [lanes[x][0] ^ lanes[x][1] ^ lanes[x][2] ^ lanes[x][3] ^ lanes[x][4] for x in range(5)]
        for x in range(5):
            for y in range(5):
                lanes[x][y] ^= parity[(x + 4) % 5] ^ rotated(parity[(x + 1) % 5], 1, 64)
        x, y, lane = 1, 0, lanes[1][0]
        for t in range(24):
            x, y = y, (2 * x + 3 * y) % 5
            lane, lanes[x][y] = lanes[x][y], rotated(lane, (t + 1) * (t + 2) // 2, 64)
        for y in range(5):
            row = [lanes[x][y] for x in range(5)]
            for x in range(5):
                lanes[x][y] = row[x] ^ ~row[(x + 1) % 5] & row[(x + 2) % 5]
        for j in range(7):
            register = (register << 1 ^ (register >> 7) * 0x71) % 256
            if register & 2:
                lanes[0][0] ^= 1 << (1 << j) - 1


def keccak(data, size, padding=0x01):
    rate = 200 - 2 * size
    data = bytearray(data + bytes([padding]) + bytes(-(len(data) + 1) % rate))
    data[-1] |= 0x80
    lanes = [[0] * 5 for _ in range(5)]
    for start in range(0, len(data), rate):
        for index in range(rate // 8):
            lanes[index % 5][index // 5] ^= struct.unpack_from("<Q", data, start + 8 * index)[0]
        keccak_f(lanes)
    return b"".join(struct.pack("<Q", lanes[i % 5][i // 5]) for i in range(25))[:size]


def checksum(data):
    crc = 0xFFFF
    for byte in data:
        crc ^= byte
        for _ in range(8):
            crc = crc >> 1 ^ (0x8408 if crc & 1 else 0)
    return crc ^ 0xFFFF


DIGESTS = [md4] + [lambda data, name=name: hashlib.new(name, data).digest()
                   for name in ("md5", "sha1", "sha224", "sha256", "sha384", "sha512")]
DIGESTS += [lambda data, size=size: keccak(data, size) for size in (28, 32, 48, 64)]


def container(algorithm, plain):
    key = DIGESTS[algorithm](plain)
    size = max(len(plain), len(key))
    data = bytes(plain[i % len(plain)] ^ key[i % len(key)] for i in range(size))
    record = struct.pack(">4sBiHI", b"SMPL", algorithm, len(plain), checksum(key), len(key)) + key
    record += struct.pack(">HI", checksum(data), len(data)) + data
    return base64.b64encode(record).decode()


def check_digests():
    """Against published values and, with the padding of today, against Python's own SHA-3."""
    assert md4(b"").hex() == "31d6cfe0d16ae931b73c59d7e0c089c0"  # RFC 1320
    assert md4(b"abc").hex() == "a448017aaf21d8525fc10ae87aa6729d"  # RFC 1320
    for size in (28, 32, 48, 64):
        text = bytes(range(256))
        assert keccak(text, size, 0x06) == hashlib.new(f"sha3_{8 * size}", text).digest()
    assert checksum(b"123456789") == 0x906E  # the check value of CRC-16/X.25


if __name__ == "__main__":
    check_digests()
    for number in range(len(DIGESTS)):
        print(number, container(number, "Hörfunk 98,5 MHz".encode()))
    print("one byte", container(1, b"x"))
