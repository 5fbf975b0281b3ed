// An error manager for libjpeg that returns to the caller's setjmp instead of exiting.
#pragma once

#include <csetjmp>
#include <cstddef>
#include <cstdio>

// jpeglib.h needs size_t and FILE declared before it.
#include <jpeglib.h>

namespace lad::platform {

// The caller sets `jump` with setjmp before its first libjpeg call and keeps only C objects in
// that frame: any libjpeg error comes back there with its text in `message`.
struct JpegErrors {
  jpeg_error_mgr manager;
  std::jmp_buf jump;
  char message[JMSG_LENGTH_MAX];
};

// Sets up `errors` and returns the manager to put into a codec's `err`.
jpeg_error_mgr* useJpegErrors(JpegErrors* errors);

}  // namespace lad::platform
