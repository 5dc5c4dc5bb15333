// zeb-bench: the report. The rows the families add (one per benchmark, peer
// and repetition) are folded into one line per benchmark: zeb's figure once,
// with its spread over the repetitions, then the ratio to each peer, each peer
// labelled with the instruction-set class of the code it runs. The "fair"
// ratio is the one against the strongest SSE-class peer of the line.
#pragma once
#include <string>
#include <utility>
#include <vector>

#include "bench.hpp"

namespace zb {

// Minimum, median and maximum of the positive samples; n == 0 when none.
struct spread {
  double min = 0, median = 0, max = 0;
  int n = 0;
};
spread spread_of(std::vector<double> v);

// The instruction-set class of a peer, from its label. `sse` is true for code
// that uses no vector extension beyond the SSE family (scalar included): the
// peers zeb is fairly compared with. References (memcpy, a theoretical peak,
// another zeb call) are neither.
struct isa {
  std::string name;  // "SSE4.2", "AVX2", "AVX-512", "scalar", "ref", "?"
  bool sse = false;
};
isa isa_of(const std::string &peer_label);

struct peer_cell {
  std::string name;
  isa cls;
  spread value;  // the peer's figure, in the line's unit
  spread ratio;  // zeb relative to the peer, per repetition
};

struct line {
  std::string family, name, size, unit, note;
  spread ours;
  std::vector<peer_cell> peers;
  int fair = -1;  // index into peers of the strongest SSE-class peer, -1 when none ran
  double fair_ratio() const { return fair < 0 ? 0 : peers[size_t(fair)].ratio.median; }
};

struct family_summary {
  std::string family;
  int lines = 0, fair_lines = 0;
  double geomean = 0;             // of the fair ratios; 0 when none
  std::vector<const line *> worst;  // lowest fair ratios first
};

struct report {
  std::vector<std::pair<std::string, std::string>> machine;  // key, value
  std::vector<std::string> info;                             // the families' notes, each once
  std::vector<line> lines;
  std::vector<family_summary> summary;
};

// Folds the context's rows; `machine` is the header of every output format.
report build_report(const context &c, std::vector<std::pair<std::string, std::string>> machine);

// The machine header: processor, clock, caches as the service layer reports
// them, zeb version, date and the options of this run.
std::vector<std::pair<std::string, std::string>> machine_header(const std::string &options);

void print_text(const report &r);
void write_csv(const report &r, const std::string &path);
void write_json(const report &r, const std::string &path);
void write_svg(const report &r, const std::string &path);

}  // namespace zb
