// The contraction list: groups split by pauses of more than an hour, and the texts of a row.
#pragma once

#include <string>
#include <vector>

#include "core/context.h"
#include "health/contraction.h"

namespace lad::health {

struct ContractionGroup {
  std::string name;
  int count = 1;
  bool operator==(const ContractionGroup&) const = default;
};

// Fills each contraction's `len2` (0 for the first of a group) and returns the groups in order.
// A group of several contractions is named from the start of its first to the end of its last.
std::vector<ContractionGroup> recountOst(std::vector<Contraction>& list, const DateCodec& dates);

struct ContractionRowText {
  std::string duration;
  std::string start;
  std::string pause;
  bool operator==(const ContractionRowText&) const = default;
};

// The texts of a row in the installation's zone and language.
ContractionRowText rowText(const Contraction& c, const Context& context);

// The contraction at row r of section s.
std::size_t positionOf(const std::vector<ContractionGroup>& groups, std::size_t section,
                       std::size_t row);

}  // namespace lad::health
