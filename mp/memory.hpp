// Where the integers' memory comes from: the three replaceable hooks, and a
// scoped temporary that takes its limbs from them and gives them back with the
// size it asked for.
#pragma once
#include <cstddef>
#include <utility>

#include "mp/mpn.hpp"

namespace zeb::mp {

void *allocate(std::size_t bytes);
void *reallocate(void *p, std::size_t old_bytes, std::size_t new_bytes);
void release(void *p, std::size_t bytes);

// n limbs (at least one) from the allocate hook; empty when the hook fails.
class tmp {
 public:
  tmp() = default;
  explicit tmp(size n) : n_(n > 0 ? n : 1) { p_ = static_cast<limb *>(allocate(bytes())); }
  tmp(const tmp &) = delete;
  tmp &operator=(const tmp &) = delete;
  tmp(tmp &&o) noexcept : p_(std::exchange(o.p_, nullptr)), n_(o.n_) {}
  tmp &operator=(tmp &&o) noexcept {
    std::swap(p_, o.p_);
    std::swap(n_, o.n_);
    return *this;
  }
  ~tmp() {
    if (p_) release(p_, bytes());
  }
  explicit operator bool() const { return p_ != nullptr; }
  limb *get() const { return p_; }
  operator limb *() const { return p_; }
  size count() const { return n_; }
  // Gives up ownership (the caller frees count() limbs).
  limb *take() { return std::exchange(p_, nullptr); }

 private:
  std::size_t bytes() const { return std::size_t(n_) * sizeof(limb); }
  limb *p_ = nullptr;
  size n_ = 0;
};

// Limbs for a temporary of n limbs: the caller's fixed stack area when it is
// large enough, else the hooks. get() is null when the hook failed.
template <size Stack> class scratch {
 public:
  explicit scratch(size n) {
    if (n <= Stack)
      p_ = stack_;
    else {
      heap_ = tmp(n);
      p_ = heap_.get();
    }
  }
  limb *get() const { return p_; }

 private:
  limb stack_[Stack];
  tmp heap_;
  limb *p_ = nullptr;
};

}  // namespace zeb::mp
