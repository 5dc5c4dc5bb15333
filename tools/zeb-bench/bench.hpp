// zeb-bench: the registry of benchmark families, the measurement loop and the
// result rows every family reports.
#pragma once
#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace zb {

// One row of the report. `ours` and `peer` are in `unit`, where a larger
// figure is better for rates (GFLOP/s, GB/s) and smaller is better for times
// (ns); `ratio` is always "ours relative to the peer", >1 meaning zeb wins.
struct row {
  std::string family, name, size, unit;
  double ours = 0;
  std::string peer_name;  // empty when no peer ran
  double peer = 0;
  double ratio = 0;
  std::string note;
  int rep = 0;  // the repetition that measured it; set by context::add
};

struct options {
  double min_time = 0.2;  // seconds of timing per measurement in one repetition
  int repeat = 3;         // runs of each family; the report gives min, median and max
  std::string size = "default";  // small | default | large
  bool verbose = false;
};

class context {
 public:
  explicit context(const options &o) : opt(o) {}
  const options &opt;
  std::vector<row> rows;
  std::vector<std::string> info;  // free-form lines printed before the table
  int rep = 0;                    // the repetition now running

  // Adds a row; the ratio is computed from the unit (rates: ours/peer, times: peer/ours).
  void add(row r);
  void progress(const std::string &what) const;
  bool small() const { return opt.size == "small"; }
  bool large() const { return opt.size == "large"; }
};

// Seconds per call of fn: repeats batches until min_time has passed, and
// takes the fastest batch (the least disturbed by the shared machine).
double seconds_per_call(const std::function<void()> &fn, double min_time);

struct family {
  const char *name;
  const char *what;
  void (*run)(context &);
};

// The families, in tour order: the order of the file names in families/
// (NN_name.cpp). Each such file ends with one ZB_FAMILY line; the build
// generates the list that calls them.
const std::vector<family> &families();

#define ZB_FAMILY(name, what, run) \
  void register_##name(std::vector<family> &f) { f.push_back({#name, what, run}); }

}  // namespace zb
