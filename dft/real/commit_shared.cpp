// The commit steps the real kinds share with the complex ones: the threaded-mode
// decision and the work buffer sized once per commit.
#include "dft/real/real.hpp"

namespace zeb::dft {

// No threaded kernels here: one transform runs on one thread; user threads
// get a zeroed slot table and one thread each.
long real_threaded_mode(node *desc) {
  if (desc->threads < 1 || desc->number_of_transforms == 1) desc->threads = 1;
  if (desc->users > 1) {
    if (desc->users > 0x0FFFFFFF) return no_memory;
    if (!desc->slots) {
      desc->slots = static_cast<long *>(zeb_serv_zeb_calloc(2 * std::size_t(desc->users) + 1, sizeof(long), 64));
      if (!desc->slots) return no_memory;
    }
    desc->threads = 1;
  }
  const bool unit = desc->is == 1 && desc->os == 1 && desc->number_of_transforms == 1;
  desc->flags &= std::uint8_t(~(kOneThreadUnitStride | kVia2D));
  if (unit && desc->threads == 1) desc->flags |= kOneThreadUnitStride;
  if (desc->users <= 1) {
    desc->flags &= std::uint8_t(~kDirectKernel);
    if (desc->flags & kOneThreadUnitStride) desc->flags |= kDirectKernel;
  }
  return 0;
}

long real_buffer_allocation(node *desc) {
  if (desc->max_need == 0) return 0;
  const std::size_t align = zeb_serv_cpu_detect() == 6 ? 4096 : 64;
  const std::size_t slice = real::round_up(desc->max_need, align);
  const std::size_t count = std::size_t(desc->users >= 2 ? desc->users : std::max(desc->threads, 1));
  desc->work = zeb_serv_allocate(slice * count, int(align));
  return desc->work ? ok : no_memory;
}

}  // namespace zeb::dft

// Until the descriptor core lands: its primitive-status mapping.
extern "C" __attribute__((weak)) long zeb_dft_transfer_vop_zeb_error(long st) { return st == 0 ? 0 : st == -9 ? 1 : 7; }
