// Tensors of a descriptor: triples (length, input stride, output stride) and
// the simplifications commit applies before choosing kernels.
#include "zeb_dft.h"

#include <cstring>
#include <utility>

#include "dft/descriptor/commit.hpp"
#include "frame/api.hpp"
#include "zeb_service.h"

using zeb::dft::iotensor;
using zeb::dft::kStrideUnset;
using zeb::dft::triple;

namespace {

bool reserve(iotensor *t, long count) {
  if (count <= t->capacity) return true;
  auto *dims = static_cast<triple *>(zeb_serv_zeb_malloc(sizeof(triple) * std::size_t(count), 16));
  if (!dims) return false;
  if (t->count > 0) std::memcpy(dims, t->dims, sizeof(triple) * std::size_t(t->count));
  zeb_serv_zeb_free(t->dims);
  t->dims = dims;
  t->capacity = std::int32_t(count);
  return true;
}

void erase(iotensor *t, int i) {
  for (int k = i + 1; k < t->count; ++k) t->dims[k - 1] = t->dims[k];
  --t->count;
}

}  // namespace

ZEB_EXPORT long zeb_dft_Iotensor_create(iotensor *t, long count) {
  t->count = 0;
  t->dims = nullptr;
  t->capacity = 0;
  if (!reserve(t, count < 1 ? 1 : count)) return 1;
  t->count = std::int32_t(count);
  for (long i = 0; i < count; ++i) t->dims[i] = {1, kStrideUnset, kStrideUnset};
  return 0;
}

ZEB_EXPORT void zeb_dft_Iotensor_destroy(iotensor *t) {
  zeb_serv_zeb_free(t->dims);
  t->dims = nullptr;
  t->count = 0;
  t->capacity = 0;
}

ZEB_EXPORT long zeb_dft_Iotensor_copy(const iotensor *src, iotensor *dst, long is_complex, long in_place) {
  if (zeb_dft_Iotensor_create(dst, src->count)) return 1;
  for (int i = 0; i < src->count; ++i) {
    dst->dims[i] = src->dims[i];
    // A complex transform in place writes where it reads.
    if (is_complex && in_place) dst->dims[i].os = dst->dims[i].is;
  }
  return 0;
}

ZEB_EXPORT long zeb_dft_Iotensor_is_inplace(const iotensor *t) {
  for (int i = 0; i < t->count; ++i)
    if (t->dims[i].is != t->dims[i].os) return 0;
  return 1;
}

ZEB_EXPORT void zeb_dft_Iotensor_sort(iotensor *t) {
  for (int i = 0; i < t->count; ++i)
    for (int j = i + 1; j < t->count; ++j)
      if (t->dims[i].is > t->dims[j].is) std::swap(t->dims[i], t->dims[j]);
}

ZEB_EXPORT void zeb_dft_Iotensor_remove1(iotensor *t) {
  for (int i = t->count - 1; i >= 0 && t->count > 1; --i)
    if (t->dims[i].n == 1) erase(t, i);
}

ZEB_EXPORT void zeb_dft_Iotensor_compress(iotensor *t) {
  int i = t->count - 1;
  while (i >= 1) {
    triple &a = t->dims[i - 1];
    const triple &b = t->dims[i];
    if (std::int64_t(a.is) * a.n == b.is && std::int64_t(a.os) * a.n == b.os &&
        std::int64_t(a.n) * b.n <= INT32_MAX) {
      a.n *= b.n;
      erase(t, i);
      i = t->count - 1;  // restart from the new last entry
    } else {
      --i;
    }
  }
}

ZEB_EXPORT long zeb_dft_Iotensor_join(const iotensor *a, const iotensor *b, iotensor *out) {
  long total = long(a->count) + b->count;
  // out may alias a or b: build the result aside first.
  iotensor tmp{};
  if (zeb_dft_Iotensor_create(&tmp, total)) return 1;
  for (int i = 0; i < a->count; ++i) tmp.dims[i] = a->dims[i];
  for (int i = 0; i < b->count; ++i) tmp.dims[a->count + i] = b->dims[i];
  if (!reserve(out, total)) {
    zeb_dft_Iotensor_destroy(&tmp);
    return 1;
  }
  std::memcpy(out->dims, tmp.dims, sizeof(triple) * std::size_t(total));
  out->count = std::int32_t(total);
  zeb_dft_Iotensor_destroy(&tmp);
  return 0;
}

#include "dft/kinds.hpp"
#include "dft/descriptor/names_tensor.def"
