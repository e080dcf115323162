#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Sends broadcasts between two hosts: network namespaces that a pair of virtual cables joins.

usage: two_hosts.py PROBE [--ignore-memory]
Exit status 77: this machine or user cannot make namespaces.
"""
import os
import shutil
import signal
import subprocess
import sys

PORT = 45454
FLOOD = 100_000
FLOOD_SIZE = 200
HOST_A, HOST_B = f"pyx-a-{os.getpid()}", f"pyx-b-{os.getpid()}"

# A datagram with a wrong checksum. One of this size is dropped when it is read, not when it arrives.
DAMAGED = """
import socket, struct
udp = struct.pack('!HHHH', 9, {port}, 8 + 200, 0xBAD) + bytes(200)
ip = struct.pack('!BBHHHBBH4s4s', 0x45, 0, 20 + len(udp), 1, 0, 64, 17, 0,
                 socket.inet_aton('10.77.0.1'), socket.inet_aton('10.77.0.2'))
raw = socket.socket(socket.AF_INET, socket.SOCK_RAW, socket.IPPROTO_RAW)
raw.sendto(ip + udp, ('10.77.0.2', 0))
"""


def ip(*words):
    subprocess.run(["ip", *words], check=True, capture_output=True, text=True)


def join(cable, subnet):
    """Lays a cable: A gets <subnet>.1, B <subnet>.2."""
    ip("link", "add", f"{cable}a", "netns", HOST_A, "type", "veth", "peer", "name", f"{cable}b", "netns", HOST_B)
    for host, end, number in ((HOST_B, "b", 2), (HOST_A, "a", 1)):
        ip("-n", host, "link", "set", f"{cable}{end}", "up")
        ip("-n", host, "address", "add", f"{subnet}.{number}/24", "brd", "+", "dev", f"{cable}{end}")


class Probe:
    def __init__(self, host, *words):
        self.process = subprocess.Popen(["ip", "netns", "exec", host, sys.argv[1], *words], stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.said = []
        self.expect("ready")

    def expect(self, start):
        """The next line that begins so; the test's own timeout ends a vain wait."""
        while True:
            line = self.process.stdout.readline()
            if not line:
                raise SystemExit(f"a probe ended while it should say '{start}'; it said {self.said}")
            self.said.append(line.strip())
            if line.startswith(start):
                return line.split()

    def command(self, line):
        self.process.stdin.write(line + "\n")
        self.process.stdin.flush()

    def report(self):
        self.command("report")
        names = ("received", "bytes", "sent", "failed", "kilobytes")
        return dict(zip(names, map(int, self.expect("report")[1:])))

    def end(self):
        self.process.stdin.close()
        self.process.wait(10)


def udp_counters(host):
    text = subprocess.run(["ip", "netns", "exec", host, "cat", "/proc/net/snmp"], check=True, capture_output=True,
                          text=True).stdout
    names, values = [line.split()[1:] for line in text.splitlines() if line.startswith("Udp:")]
    return dict(zip(names, map(int, values)))


def check(condition, text):
    print(("ok      " if condition else "FAILED  ") + text)
    if not condition:
        raise SystemExit(1)


def only_loopback_sends_nothing():
    ip("-n", HOST_A, "link", "set", "lo", "up")
    lonely = Probe(HOST_A, "send", str(PORT), "50", "20")
    check(lonely.report()["sent"] == 0, "a host with nothing but loopback sends nothing")
    lonely.end()


def large_datagram_reaches_all(receivers):
    sender = Probe(HOST_A, "send", str(PORT), "50", "2000")
    for receiver in receivers:
        receiver.expect("heard 10.77.0.1 2000 whole")
    check(True, "both receivers on one port get 2000 bytes whole")
    sender.end()


def later_network_is_noticed(receivers):
    sender = Probe(HOST_A, "send", str(PORT), "50", "30", "10.88.0.1")
    check(sender.report()["sent"] == 0, "an address that the host does not have yet sends nothing")
    join("later", "10.88.0")
    for receiver in receivers:
        receiver.expect("heard 10.88.0.1 30 whole")
    check(True, "a network that appears later gets the broadcast")
    sender.end()


def damaged_datagram_does_not_deafen(receivers):
    subprocess.run(["ip", "netns", "exec", HOST_A, sys.executable, "-c", DAMAGED.format(port=PORT)], check=True)
    subprocess.run(["ip", "netns", "exec", HOST_A, sys.executable, "-c", DAMAGED.format(port=PORT)], check=True)
    sender = Probe(HOST_A, "send", str(PORT), "50", "40", "10.77.0.1")
    for receiver in receivers:
        receiver.expect("heard 10.77.0.1 40 whole")
    check(udp_counters(HOST_B)["InCsumErrors"] > 0, "receivers go on after a damaged datagram")
    sender.end()


def flood_is_counted(receivers):
    """The systems' counters tell what was lost before a receiver could see it."""
    lost = udp_counters(HOST_B)["RcvbufErrors"]
    before = [receiver.report() for receiver in receivers]
    source = Probe(HOST_A, "send", "9", "60000", "0")
    source.command(f"flood 10.77.0.255 {PORT} {FLOOD_SIZE} {FLOOD}")
    sent = int(source.expect("flooded")[1])
    while True:
        after = [receiver.report() for receiver in receivers]
        received = [new["received"] - old["received"] for old, new in zip(before, after)]
        dropped = udp_counters(HOST_B)["RcvbufErrors"] - lost
        if sum(received) + dropped >= len(receivers) * sent:
            break
    grown = [new["kilobytes"] - old["kilobytes"] for old, new in zip(before, after)]
    print(f"        sent {sent}, received {received}, lost in the system {dropped}, memory grew by {grown} KB")
    check(sent == FLOOD, "the flood is sent")
    check(sum(received) + dropped == len(receivers) * sent, "every datagram of the flood is counted once")
    check(all(new["bytes"] - old["bytes"] == count * FLOOD_SIZE
              for old, new, count in zip(before, after, received)), "so are its bytes")
    if "--ignore-memory" not in sys.argv:
        check(max(grown) < 1024, "the flood leaves the memory flat")
    source.end()


def main():
    if os.geteuid() != 0 or not shutil.which("ip"):
        print("SKIPPED: making network namespaces needs root and iproute2.")
        return 77
    try:
        ip("netns", "add", HOST_A)
        ip("netns", "add", HOST_B)
    except subprocess.CalledProcessError as error:
        print(f"SKIPPED: no network namespaces here: {error.stderr.strip()}")
        subprocess.run(["ip", "netns", "delete", HOST_A], check=False, capture_output=True)
        return 77
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))  # so that the namespaces go
    try:
        only_loopback_sends_nothing()
        join("cable", "10.77.0")
        receivers = [Probe(HOST_B, "receive", str(PORT)) for _ in range(2)]
        large_datagram_reaches_all(receivers)
        later_network_is_noticed(receivers)
        damaged_datagram_does_not_deafen(receivers)
        flood_is_counted(receivers)
        for receiver in receivers:
            receiver.end()
    finally:
        for host in (HOST_A, HOST_B):
            subprocess.run(["ip", "netns", "delete", host], check=False)
    return 0


if __name__ == "__main__":
    sys.exit(main())
