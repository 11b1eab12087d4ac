#!/usr/bin/env python3
"""The cost of the Python module's three commonest operations against the same operation on a
plain Python class with __slots__, side by side in one run: constructing an object with one
member given, setting a member, reading a member. Prints each ratio (module / plain class).

    PYTHONPATH=build/python python3 bench/python_bench.py [--check LIMIT]

With --check, exits 1 when a ratio exceeds LIMIT.
"""
import argparse
import dataclasses
import sys
import timeit

import qmxodbattr as qa


@dataclasses.dataclass(slots=True)
class PlainProfile:
    r: float = 1.0


def best(stmt, number, scope):
    """The fastest of five runs, per operation, in seconds: the least disturbed by other load."""
    return min(timeit.repeat(stmt, number=number, repeat=5, globals=scope)) / number


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", type=float, help="fail when a ratio exceeds this")
    args = parser.parse_args()
    scope = {"qa": qa, "PlainProfile": PlainProfile, "p": qa.CircularProfile(r=1.0), "q": PlainProfile(r=1.0)}
    rows = [
        ("construct", "qa.CircularProfile(r=2.0)", "PlainProfile(r=2.0)", 20_000),
        ("setattr", "p.r = 2.0", "q.r = 2.0", 200_000),
        ("getattr", "p.r", "q.r", 200_000),
    ]
    failed = False
    print(f"{'operation':<10} {'module':>10} {'plain':>10} {'ratio':>7}")
    for name, ours, plain, number in rows:
        a = best(ours, number, scope)
        b = best(plain, number, scope)
        ratio = a / b
        failed = failed or (args.check is not None and ratio > args.check)
        print(f"{name:<10} {a * 1e6:>8.2f}us {b * 1e6:>8.3f}us {ratio:>6.1f}x")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
