#include "presentation/drawing/label_spread.h"

#include <algorithm>

namespace velmar::presentation {
namespace {

/// Labels that touch and so move as one.
struct Block {
  double sum = 0.0;
  int count = 0;
  double Mean() const { return sum / count; }
};

}  // namespace

// Least squares under the order constraint: labels that would overlap form blocks, and a block stands at the
// mean of what its labels want (pool adjacent violators).
std::vector<double> SpreadLabels(std::span<const double> wanted, std::span<const double> sizes, double from,
                                 double to) {
  std::vector<double> offsets;
  std::vector<Block> blocks;
  double offset = 0.0;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    if (i > 0) offset += (sizes[i - 1] + sizes[i]) / 2.0;
    offsets.push_back(offset);
    blocks.push_back({wanted[i] - offset, 1});
    while (blocks.size() > 1 && blocks.back().Mean() < blocks[blocks.size() - 2].Mean()) {
      const Block last = blocks.back();
      blocks.pop_back();
      blocks.back().sum += last.sum;
      blocks.back().count += last.count;
    }
  }
  std::vector<double> centres;
  if (wanted.empty()) return centres;
  const double lowest = from + sizes.front() / 2.0;
  const double highest = std::max(lowest, to - sizes.back() / 2.0 - offsets.back());
  for (const Block& block : blocks) {
    const double place = std::clamp(block.Mean(), lowest, highest);
    for (int i = 0; i < block.count; ++i) centres.push_back(place + offsets[centres.size()]);
  }
  return centres;
}

}  // namespace velmar::presentation
