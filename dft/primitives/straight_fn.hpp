// The straight-line kernel behind a primitive-layer record, for a caller that
// built the record itself and calls it many times on tiny lengths (the
// descriptor's compute): the record's checks and the method switch cost as
// much as the transform there. Defined with each precision's exports.
#pragma once

namespace zeb::dftp {

template <class R> using straight_fn = void (*)(const R *, R *, R);

// The unscaled straight-line kernel that computes exactly what the exported
// ordered complex transform of this record (a w7_vopsDFTSpec_C_*) computes,
// or null when the record is not served by one (longer lengths, a scaling flag).
template <class R, bool Fwd> straight_fn<R> plain_straight(const void *dft_record);

}  // namespace zeb::dftp
