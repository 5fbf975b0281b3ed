// What the image readers share: the size limit, error texts, allocation that cannot throw.
#pragma once

#include <cstdint>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lad::platform {

inline constexpr char kTooManyPixels[] = "the image has more than 50 megapixels";

bool exceedsPixelLimit(std::uint64_t width, std::uint64_t height);

// Puts `text` into `error` when there is one; returns false for `return fail(...)`.
bool fail(std::string* error, std::string_view text);

// Resizes without throwing, for frames that a C library may leave through longjmp.
template <typename T>
bool tryResize(std::vector<T>& buffer, std::size_t size) {
  try {
    buffer.resize(size);
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  } catch (const std::length_error&) {
    return false;
  }
}

}  // namespace lad::platform
