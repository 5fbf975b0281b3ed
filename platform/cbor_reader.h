// A small CBOR reader for what a security key hands over at registration: maps, arrays, byte
// and text strings, integers and the simple values. Anything else, and anything cut short, is
// an error; the reader never reads past its input and never throws.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lad::platform {

struct CborItem {
  enum class Kind { Integer, Bytes, Text, Array, Map, Simple };
  Kind kind = Kind::Simple;
  std::int64_t integer = 0;     // Integer: the value; Simple: 20 false, 21 true, 22 null
  std::string bytes;            // Bytes and Text
  std::vector<CborItem> items;  // Array: the elements; Map: key, value, key, value, ...

  // Map lookup by an integer or a text key; nullptr when absent or not a map.
  const CborItem* find(std::int64_t key) const;
  const CborItem* find(std::string_view key) const;
};

struct CborRead {
  std::optional<CborItem> item;  // empty: `error` says why
  std::size_t used = 0;          // bytes the item took from the input
  std::string error;
};

// Reads the first item of `data`; bytes after it are left for the caller.
CborRead readCbor(std::string_view data);

}  // namespace lad::platform
