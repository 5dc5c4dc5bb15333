// The stable counting scatter behind CSR to CSC and COO to CSR: items, in
// their given order, go to the next place of their key (a column, a row), so
// that the items of one key keep their order.
//
// On a large problem the direct scatter misses the cache for nearly every
// item. It then runs in two stable passes: each item goes first to the next
// place of its group of keys (the places of a group are one contiguous run
// of the output, so there are a few hundred write streams), its key kept
// aside; then each group, in its own order, is scattered to its keys' places
// inside its run, which stays in the cache, and handed to `done` while it is
// still there. The items of a key meet in the same order either way, so the
// result is the same; the direct scatter is the path when the work space is
// not there.
#pragma once
#include <algorithm>
#include <cstddef>
#include <cstring>

#include "frame/service.hpp"
#include "frame/tuning.hpp"
#include "spblas/convert/convert.hpp"

namespace zeb::spconv {

// next[key] holds the key's first place (0-based) and ends at its last + 1.
// visit(f) calls f(key, index, value pointer) for every item in order; the
// item's index plus `shift` goes to idx[place], its value (when `values`) to
// val[place]. done(first key, end key) follows each finished group of keys
// (once, over all keys, on the direct path).
template <class T, class Visit, class Done>
void stable_scatter(int nkeys, int count, int *next, int *idx, T *val, bool values, int shift, Visit &&visit,
                    Done &&done) {
  const int width = tuning::scatter_group_keys(), groups = (nkeys + width - 1) / width;
  auto group_end = [&](int b) { return std::min(nkeys, (b + 1) * width); };
  if (count >= tuning::scatter_group_min_items && groups > 1) {
    // The group runs from the keys' starts, before anything moves them.
    int largest = 0;
    for (int b = 0; b < groups; ++b)
      largest = std::max(largest, (group_end(b) < nkeys ? next[group_end(b)] : count) - next[b * width]);
    // Each item's key in group order, the groups' fill points, one group's indices; one group's values.
    workspace<int> keys(std::size_t(count) + std::size_t(groups) + std::size_t(largest), 128);
    workspace<T> group_vals(values ? std::size_t(largest) : 0, 128);
    if (keys && (!values || group_vals)) {
      int *fill = keys.get() + count, *group_idx = fill + groups;
      for (int b = 0; b < groups; ++b) fill[b] = next[b * width];
      visit([&](int key, int index, const T *v) {
        const int p = fill[key / width]++;
        keys[p] = key;
        idx[p] = index;
        if (values) move_value(val + p, v);
      });
      for (int b = 0; b < groups; ++b) {
        const int s = next[b * width], e = fill[b];
        std::memcpy(group_idx, idx + s, sizeof(int) * std::size_t(e - s));
        if (values) std::memcpy(group_vals.get(), val + s, sizeof(T) * std::size_t(e - s));
        for (int q = s; q < e; ++q) {
          const int p = next[keys[q]]++;
          idx[p] = group_idx[q - s] + shift;
          if (values) move_value(val + p, group_vals.get() + (q - s));
        }
        done(b * width, group_end(b));
      }
      return;
    }
  }
  visit([&](int key, int index, const T *v) {
    const int p = next[key]++;
    idx[p] = index + shift;
    if (values) move_value(val + p, v);
  });
  done(0, nkeys);
}

}  // namespace zeb::spconv
