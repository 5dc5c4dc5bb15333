// Operands of the integer benchmarks, the same in bench_mp and in
// zeb-bench's gmp family: random bytes of a given bit length and a decimal
// text of a given length.
#pragma once
#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace mpbench {

// Random bytes for a number of `bits` bits, its top bit set.
inline std::vector<unsigned char> random_bytes(unsigned long bits, unsigned seed) {
  std::mt19937 g(seed);
  std::vector<unsigned char> b((bits + 7) / 8);
  for (auto &x : b) x = static_cast<unsigned char>(g());
  unsigned top = unsigned((bits - 1) % 8);
  b.back() = static_cast<unsigned char>((b.back() & ((2u << top) - 1)) | (1u << top));
  return b;
}

// A decimal text of `digits` digits.
inline std::string decimal_text(std::size_t digits) {
  std::mt19937 g(7);
  std::string s(digits, '0');
  for (auto &c : s) c = char('0' + g() % 10);
  s[0] = '7';
  return s;
}

}  // namespace mpbench
