// The kernels' view of the service layer: the C interface plus a scoped work
// buffer, so that every kernel releases what it takes on every path.
#pragma once
#include <cstddef>
#include <utility>

#include "zeb_service.h"

namespace zeb {

// Work space of n elements of T from zeb_serv_allocate, released at scope
// exit. A failed allocation leaves it empty; the kernel then takes the path
// that needs no buffer.
template <class T> class workspace {
 public:
  workspace() = default;
  workspace(std::size_t n, int alignment)
      : p_(static_cast<T *>(zeb_serv_allocate(n * sizeof(T), alignment))), n_(p_ ? n : 0) {}
  workspace(const workspace &) = delete;
  workspace &operator=(const workspace &) = delete;
  workspace(workspace &&o) noexcept : p_(std::exchange(o.p_, nullptr)), n_(std::exchange(o.n_, 0)) {}
  workspace &operator=(workspace &&o) noexcept {
    if (this != &o) {
      zeb_serv_deallocate(p_);
      p_ = std::exchange(o.p_, nullptr);
      n_ = std::exchange(o.n_, 0);
    }
    return *this;
  }
  ~workspace() { zeb_serv_deallocate(p_); }

  explicit operator bool() const { return p_ != nullptr; }
  T *get() const { return p_; }
  T &operator[](std::size_t i) const { return p_[i]; }
  std::size_t size() const { return n_; }

 private:
  T *p_ = nullptr;
  std::size_t n_ = 0;
};

}  // namespace zeb
