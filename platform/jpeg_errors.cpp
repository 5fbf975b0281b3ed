#include "platform/jpeg_errors.h"

// jerror.h needs jpeglib.h first.
#include <jerror.h>

namespace lad::platform {

namespace {

[[noreturn]] void leaveOnError(j_common_ptr codec) {
  auto* errors = reinterpret_cast<JpegErrors*>(codec->err);
  codec->err->format_message(codec, errors->message);
  std::longjmp(errors->jump, 1);
}

// libjpeg only warns when the data ends inside the image and fills the rest with grey; a photo
// cut short in its upload is refused instead. Other warnings are left unshown.
void onMessage(j_common_ptr codec, int level) {
  if (level < 0 && codec->err->msg_code == JWRN_JPEG_EOF) leaveOnError(codec);
}

}  // namespace

jpeg_error_mgr* useJpegErrors(JpegErrors* errors) {
  jpeg_error_mgr* manager = jpeg_std_error(&errors->manager);
  manager->error_exit = leaveOnError;
  manager->emit_message = onMessage;
  errors->message[0] = '\0';
  return manager;
}

}  // namespace lad::platform
