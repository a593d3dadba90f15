#!/usr/bin/env python3
"""Times the interpolation of scattered data beside SciPy: Qhull's triangulation and the Clough-Tocher surface on it.

    tools/scattered_peer.py build/release/libkorc.so"""
import ctypes as ct
import sys
import time

import numpy as np
from scipy.interpolate import CloughTocher2DInterpolator
from scipy.spatial import Delaunay

from smoothing_peer import DOUBLES, Error, pointer

TRIANGLES, SHEPARD = 61, 62


class Record(ct.Structure):
    _fields_ = [("stamp1", ct.c_int), ("stamp2", ct.c_int), ("setup_ok", ct.c_int), ("method", ct.c_int), ("m", ct.c_int),
                ("radius", ct.c_double), ("has_memory", ct.c_ubyte), ("x", DOUBLES), ("y", DOUBLES), ("f", DOUBLES),
                ("quad", DOUBLES), ("mesh", ct.POINTER(ct.c_int)), ("grads", DOUBLES)]


def best(action, repeats=3):
    times = []
    for _ in range(repeats):
        start = time.perf_counter()
        result = action()
        times.append(time.perf_counter() - start)
    return min(times), result


def hill(x, y):
    return np.sin(3 * x) * np.cos(2 * y) + x * y


def main():
    lib = ct.CDLL(sys.argv[1])
    rng = np.random.default_rng(3)
    side = np.arange(316) / 10.0
    sets = [(f"random {m}", rng.uniform(size=m), rng.uniform(size=m)) for m in (1000, 10000, 100000)]
    sets.append(("grid of tenths 99856", np.repeat(side, 316) / 31.5, np.tile(side, 316) / 31.5))
    for name, x, y in sets:
        m, f = len(x), hill(x, y)
        px, py = rng.uniform(0.05, 0.95, 100000), rng.uniform(0.05, 0.95, 100000)
        points, places = np.column_stack([x, y]), np.column_stack([px, py])
        times = {}
        for label, method in (("triangles", TRIANGLES), ("Shepard", SHEPARD)):
            def build(method=method):
                record, fail = Record(), Error()
                lib.e01sac(method, m, pointer(x), pointer(y), pointer(f), ct.byref(record), None, ct.byref(fail))
                return record

            record, fail, pf = build(), Error(), np.empty(len(px))
            times[label], _ = best(lambda: lib.e01szc(ct.byref(build())))
            evaluation, _ = best(lambda: lib.e01sbc(ct.byref(record), len(px), pointer(px), pointer(py), pointer(pf), ct.byref(fail)))
            error = np.sqrt(np.mean((pf - hill(px, py))**2))
            print(f"{name:22s} {label:14s} set up {times[label]:9.4f} s   {evaluation / len(px) * 1e9:9.1f} ns a value   error {error:.2e}")
        triangulation, mesh = best(lambda: Delaunay(points))
        gradients, surface = best(lambda: CloughTocher2DInterpolator(mesh, f))
        evaluation, values = best(lambda: surface(places))
        error = np.sqrt(np.nanmean((values - hill(px, py))**2))
        print(f"{name:22s} {'SciPy':14s} set up {triangulation + gradients:9.4f} s   {evaluation / len(px) * 1e9:9.1f} ns a value   "
              f"error {error:.2e}   (Qhull {triangulation:.4f} s; set up {(triangulation + gradients) / times['triangles']:.1f} times ours)")


if __name__ == "__main__":
    main()
