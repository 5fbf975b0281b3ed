#include "cloud/property_list_shape.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace lad::cloud {

namespace {

constexpr std::size_t kHeader = 8;
constexpr std::size_t kTrailer = 32;

class Shape {
 public:
  Shape(std::span<const std::uint8_t> bytes, const PropertyListLimits& limits)
      : bytes_(bytes), limits_(limits) {}

  std::string check() {
    if (bytes_.size() < kHeader + kTrailer) return "a binary property list that is cut short";
    const std::size_t trailer = bytes_.size() - kTrailer;
    offsetSize_ = bytes_[trailer + 6];
    refSize_ = bytes_[trailer + 7];
    count_ = number(trailer + 8, 8).value_or(0);
    const std::uint64_t top = number(trailer + 16, 8).value_or(0);
    table_ = number(trailer + 24, 8).value_or(0);
    if (offsetSize_ < 1 || offsetSize_ > 8 || refSize_ < 1 || refSize_ > 8 || top >= count_ ||
        table_ < kHeader || table_ > trailer || (trailer - table_) / offsetSize_ < count_)
      return "a binary property list that is cut short or malformed";
    known_.assign(count_, {kUnknown, 0});
    return measure(top, 0).problem;
  }

 private:
  static constexpr std::uint64_t kUnknown = ~std::uint64_t{0};
  static constexpr std::uint64_t kInProgress = kUnknown - 1;

  // The object's tree: its nodes with every reference expanded, and the levels below it.
  struct Measure {
    std::uint64_t nodes = 0;
    int height = 0;
    std::string problem;
  };
  // What is kept of each object measured: a list may have as many objects as bytes.
  struct Known {
    std::uint64_t nodes = kUnknown;
    int height = 0;
  };

  // A big-endian number of `width` bytes at `at`; nullopt past the end.
  std::optional<std::uint64_t> number(std::size_t at, std::size_t width) const {
    if (at > bytes_.size() || bytes_.size() - at < width) return std::nullopt;
    std::uint64_t n = 0;
    for (std::size_t i = 0; i < width; ++i) n = n << 8 | bytes_[at + i];
    return n;
  }

  // Whether the bytes hold a zero character: the library cannot take such a text or key.
  bool holdsZero(std::size_t first, std::uint64_t units, std::size_t width) const {
    for (std::uint64_t i = 0; i < units; ++i)
      if (number(first + i * width, width) == 0) return true;
    return false;
  }

  // The length in the object's marker, or in the integer after it; moves first past them.
  std::optional<std::uint64_t> lengthOf(std::uint8_t marker, std::size_t& first) const {
    if ((marker & 0x0F) != 0x0F) return marker & 0x0F;
    if (first >= table_ || bytes_[first] >> 4 != 0x1) return std::nullopt;
    const std::size_t width = std::size_t{1} << (bytes_[first] & 0x03);
    const auto length = number(first + 1, width);
    first += 1 + width;
    return length;
  }

  // Checks the object at index and gives its references (keys and values of a dictionary).
  std::string readObject(std::uint64_t index, std::vector<std::uint64_t>& refs) const {
    constexpr const char* kMalformed = "a binary property list that is cut short or malformed";
    const std::uint64_t at = *number(table_ + index * offsetSize_, offsetSize_);
    if (at < kHeader || at >= table_) return kMalformed;
    const int type = bytes_[at] >> 4;
    if (type != 0x5 && type != 0x6 && type != 0xA && type != 0xC && type != 0xD) return {};
    std::size_t first = at + 1;
    const auto length = lengthOf(bytes_[at], first);
    if (!length || *length > table_ || first > table_) return kMalformed;
    const std::size_t width = type == 0x5 ? 1 : type == 0x6 ? 2 : refSize_;
    const std::uint64_t units = type == 0xD ? 2 * *length : *length;
    if ((table_ - first) / width < units) return kMalformed;
    if (type == 0x5 || type == 0x6)
      return holdsZero(first, units, width) ? "the property list holds a text with a zero character"
                                            : "";
    for (std::uint64_t i = 0; i < units; ++i) {
      refs.push_back(*number(first + i * width, width));
      if (refs.back() >= count_) return kMalformed;
    }
    return {};
  }

  static Measure failed(std::string problem) { return {0, 0, std::move(problem)}; }

  // Each object is measured once; the recursion ends at the depth limit.
  Measure measure(std::uint64_t index, int depth) {
    const Known known = known_[index];
    if (known.nodes == kInProgress) return failed("the property list contains itself");
    if (known.nodes == kUnknown && depth <= limits_.deepest) return measureNew(index, depth);
    if (known.nodes == kUnknown || depth + known.height > limits_.deepest)
      return failed("the property list nests too deeply");
    return {known.nodes, known.height, {}};
  }

  Measure measureNew(std::uint64_t index, int depth) {
    std::vector<std::uint64_t> refs;
    if (std::string problem = readObject(index, refs); !problem.empty()) return failed(problem);
    known_[index].nodes = kInProgress;
    Measure tree{1, 0, {}};
    for (std::uint64_t ref : refs) {
      const Measure child = measure(ref, depth + 1);
      if (!child.problem.empty()) return child;
      tree.nodes += child.nodes;
      tree.height = std::max(tree.height, child.height + 1);
      if (tree.nodes > limits_.most) return failed("the property list expands to too many values");
    }
    known_[index] = {tree.nodes, tree.height};
    return tree;
  }

  std::span<const std::uint8_t> bytes_;
  PropertyListLimits limits_;
  std::size_t offsetSize_ = 0;
  std::size_t refSize_ = 0;
  std::uint64_t count_ = 0;
  std::uint64_t table_ = 0;
  std::vector<Known> known_;
};

}  // namespace

bool propertyListWithin(std::span<const std::uint8_t> bytes, const PropertyListLimits& limits,
                        std::string* error) {
  std::string problem = Shape(bytes, limits).check();
  if (problem.empty()) return true;
  if (error) *error = std::move(problem);
  return false;
}

}  // namespace lad::cloud
