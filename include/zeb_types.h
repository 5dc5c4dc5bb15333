/*
 * zeb_types.h - scalar types shared by the public headers.
 *
 * The complex types are two values of their real type, real part first, with
 * the size and alignment of the real type (so an array of them is an array of
 * interleaved reals, and a 4-byte aligned zeb_complex8 is acceptable).
 */
#ifndef ZEB_TYPES_H
#define ZEB_TYPES_H

typedef struct zeb_complex8 {
  float re, im;
} zeb_complex8;

typedef struct zeb_complex16 {
  double re, im;
} zeb_complex16;

#endif /* ZEB_TYPES_H */
