#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Prints the containers that tst_SimpleEncryptionProvider expects, made from docs/secret-container.md alone.

Digests that Python lacks come from python3-pycryptodome: MD4 and Keccak with the padding of before SHA-3.
"""
import base64
import hashlib
import struct

from Cryptodome.Hash import MD4, keccak


def checksum(data):
    crc = 0xFFFF
    for byte in data:
        crc ^= byte
        for _ in range(8):
            crc = crc >> 1 ^ (0x8408 if crc & 1 else 0)
    return crc ^ 0xFFFF


DIGESTS = [lambda data: MD4.new(data).digest()]
DIGESTS += [lambda data, name=name: hashlib.new(name, data).digest()
            for name in ("md5", "sha1", "sha224", "sha256", "sha384", "sha512")]
DIGESTS += [lambda data, size=size: keccak.new(data=data, digest_bytes=size).digest() for size in (28, 32, 48, 64)]


def container(algorithm, plain):
    key = DIGESTS[algorithm](plain)
    size = max(len(plain), len(key))
    data = bytes(plain[i % len(plain)] ^ key[i % len(key)] for i in range(size))
    record = struct.pack(">4sBiHI", b"SMPL", algorithm, len(plain), checksum(key), len(key)) + key
    record += struct.pack(">HI", checksum(data), len(data)) + data
    return base64.b64encode(record).decode()


if __name__ == "__main__":
    assert checksum(b"123456789") == 0x906E  # the check value of CRC-16/X.25
    for number in range(len(DIGESTS)):
        print(number, container(number, "Hörfunk 98,5 MHz".encode()))
    print("one byte", container(1, b"x"))
