#include "platform/cbor_reader.h"

#include <limits>

namespace lad::platform {

namespace {

constexpr int kMaxDepth = 16;

enum Major { kUnsigned = 0, kNegative, kByteString, kTextString, kArray, kMap, kTag, kSimple };

class Reader {
 public:
  explicit Reader(std::string_view data) : data_(data) {}

  std::optional<CborItem> item(int depth) {
    if (depth > kMaxDepth) return fail("nested too deeply");
    if (pos_ >= data_.size()) return fail("cut short");
    const auto head = static_cast<std::uint8_t>(data_[pos_++]);
    const int major = head >> 5;
    const auto argument = this->argument(head & 0x1f);
    if (!argument) return std::nullopt;
    switch (major) {
      case kUnsigned:
      case kNegative:
        return integer(major, *argument);
      case kByteString:
      case kTextString:
        return string(major, *argument);
      case kArray:
      case kMap:
        return container(major, *argument, depth);
      case kSimple:
        return simple(head & 0x1f, *argument);
      default:
        return fail("tags are not taken");
    }
  }

  std::size_t pos() const { return pos_; }
  const std::string& error() const { return error_; }

 private:
  std::nullopt_t fail(std::string why) {
    if (error_.empty()) error_ = std::move(why);
    return std::nullopt;
  }

  // The number that follows the head: in the head itself below 24, else in 1, 2, 4 or 8 bytes.
  std::optional<std::uint64_t> argument(int info) {
    if (info < 24) return static_cast<std::uint64_t>(info);
    if (info > 27) return fail("indefinite lengths and reserved values are not taken");
    const std::size_t size = std::size_t{1} << (info - 24);
    if (data_.size() - pos_ < size) return fail("cut short");
    std::uint64_t n = 0;
    for (std::size_t i = 0; i < size; ++i) n = (n << 8) | static_cast<std::uint8_t>(data_[pos_++]);
    return n;
  }

  std::optional<CborItem> integer(int major, std::uint64_t n) {
    if (n > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()))
      return fail("integer out of range");
    CborItem it;
    it.kind = CborItem::Kind::Integer;
    it.integer =
        major == kUnsigned ? static_cast<std::int64_t>(n) : -1 - static_cast<std::int64_t>(n);
    return it;
  }

  std::optional<CborItem> string(int major, std::uint64_t size) {
    if (data_.size() - pos_ < size) return fail("cut short");
    CborItem it;
    it.kind = major == kByteString ? CborItem::Kind::Bytes : CborItem::Kind::Text;
    it.bytes = std::string(data_.substr(pos_, size));
    pos_ += size;
    return it;
  }

  std::optional<CborItem> container(int major, std::uint64_t count, int depth) {
    const std::uint64_t children = major == kMap ? count * 2 : count;
    // Each child takes at least one byte: a count beyond what is left is a lie.
    if (count > data_.size() || children > data_.size() - pos_) return fail("cut short");
    CborItem it;
    it.kind = major == kMap ? CborItem::Kind::Map : CborItem::Kind::Array;
    it.items.reserve(children);
    for (std::uint64_t i = 0; i < children; ++i) {
      auto child = item(depth + 1);
      if (!child) return std::nullopt;
      it.items.push_back(std::move(*child));
    }
    return it;
  }

  std::optional<CborItem> simple(int info, std::uint64_t value) {
    if (info > 23 || value < 20 || value > 22)
      return fail("floats and unknown simple values are not taken");
    CborItem it;
    it.kind = CborItem::Kind::Simple;
    it.integer = static_cast<std::int64_t>(value);
    return it;
  }

  std::string_view data_;
  std::size_t pos_ = 0;
  std::string error_;
};

template <class Match>
const CborItem* findIn(const CborItem& map, Match matches) {
  if (map.kind != CborItem::Kind::Map) return nullptr;
  for (std::size_t i = 0; i + 1 < map.items.size(); i += 2)
    if (matches(map.items[i])) return &map.items[i + 1];
  return nullptr;
}

}  // namespace

const CborItem* CborItem::find(std::int64_t key) const {
  return findIn(*this,
                [key](const CborItem& k) { return k.kind == Kind::Integer && k.integer == key; });
}

const CborItem* CborItem::find(std::string_view key) const {
  return findIn(*this, [key](const CborItem& k) { return k.kind == Kind::Text && k.bytes == key; });
}

CborRead readCbor(std::string_view data) {
  Reader reader(data);
  CborRead result;
  result.item = reader.item(0);
  if (result.item)
    result.used = reader.pos();
  else
    result.error = "CBOR: " + reader.error();
  return result;
}

}  // namespace lad::platform
