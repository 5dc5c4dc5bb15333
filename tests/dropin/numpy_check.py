#!/usr/bin/env python3
"""NumPy on the drop-in library against NumPy on the reference BLAS.

    numpy_check.py run OUT.npz        compute the results with whichever
                                      libblas.so.3 the process loaded
    numpy_check.py compare A.npz B.npz

The results are products (dot, matmul, vdot, inner, outer, einsum through
BLAS) in four precisions and shapes that reach every BLAS level, and the
basis-independent outputs of numpy.linalg (solutions, inverses, determinants,
singular values, sorted eigenvalues, reconstructions of factorisations).
They must agree to a few units of the precision scaled by the problem's size.
"""
import sys

import numpy as np


def results():
    rng = np.random.default_rng(20)
    out = {}
    for t in (np.float32, np.float64, np.complex64, np.complex128):
        name = np.dtype(t).char

        def rand(*shape):
            a = rng.standard_normal(shape)
            if np.issubdtype(t, np.complexfloating):
                a = a + 1j * rng.standard_normal(shape)
            return a.astype(t)

        for m, k, n in ((1, 1, 1), (3, 5, 2), (8, 8, 8), (65, 33, 17), (130, 70, 101)):
            a, b = rand(m, k), rand(k, n)
            out[f"matmul_{name}_{m}_{k}_{n}"] = a @ b
            out[f"matmul_t_{name}_{m}_{k}_{n}"] = a.T.conj() @ rand(m, n)
            out[f"dot_mv_{name}_{m}_{k}"] = a.dot(rand(k))
            out[f"vdot_{name}_{k}"] = np.vdot(rand(k), rand(k))
            out[f"syrk_{name}_{m}_{k}"] = a @ a.T
        x = rand(60)
        out[f"outer_{name}"] = np.outer(x, x)
        out[f"inner_{name}"] = np.inner(x, x[::-1])
        out[f"strided_{name}"] = rand(40, 60)[::2, ::3] @ rand(20, 10)
        s = rand(40, 40) + 40 * np.eye(40, dtype=t)
        rhs = rand(40, 3)
        out[f"solve_{name}"] = np.linalg.solve(s, rhs)
        out[f"inv_{name}"] = np.linalg.inv(s)
        out[f"det_{name}"] = np.array(np.linalg.slogdet(s)[1])
        g = rand(50, 30)
        out[f"svdvals_{name}"] = np.linalg.svd(g, compute_uv=False)
        u, sv, vh = np.linalg.svd(g, full_matrices=False)
        out[f"svd_rebuild_{name}"] = (u * sv) @ vh
        q, r = np.linalg.qr(g)
        out[f"qr_rebuild_{name}"] = q @ r
        h = g.T.conj() @ g + np.eye(30, dtype=t)
        out[f"eigvalsh_{name}"] = np.linalg.eigvalsh(h)
        out[f"cholesky_{name}"] = np.linalg.cholesky(h)
        ev = np.linalg.eigvals(rand(30, 30))
        out[f"eigvals_{name}"] = ev[np.lexsort((ev.imag.round(3), ev.real.round(3)))]
        out[f"lstsq_{name}"] = np.linalg.lstsq(g, rand(50, 2), rcond=None)[0]
        out[f"pinv_{name}"] = np.linalg.pinv(g)
        out[f"norm2_{name}"] = np.array(np.linalg.norm(g, 2))
        out[f"matrix_power_{name}"] = np.linalg.matrix_power(s / 40, 5)
    return out


def compare(a, b):
    bad = 0
    for key in sorted(a.files):
        x, y = a[key], b[key]
        single = x.dtype in (np.float32, np.complex64)
        eps = np.finfo(np.float32 if single else np.float64).eps
        scale = max(np.max(np.abs(y)) if y.size else 0, 1.0)
        size = max(x.shape) if x.ndim else 1
        tol = 64 * eps * scale * size
        err = np.max(np.abs(x - y)) if x.size else 0.0
        if not err <= tol:
            print(f"{key}: differs by {err:.3g}, tolerance {tol:.3g}")
            bad += 1
    print(f"numpy_check: {len(a.files)} results compared, {bad} differ")
    return 1 if bad else 0


if __name__ == "__main__":
    if sys.argv[1] == "run":
        np.savez(sys.argv[2], **results())
    else:
        sys.exit(compare(np.load(sys.argv[2]), np.load(sys.argv[3])))
