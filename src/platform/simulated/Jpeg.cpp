#include "platform/simulated/Jpeg.h"

#include "platform/PlatformError.h"

#include <memory>
#include <turbojpeg.h>

namespace vantorel {
namespace {

constexpr int kQuality = 90;

struct Closed {
  void operator()(void *compressor) const { tjDestroy(compressor); }
  void operator()(unsigned char *bytes) const { tjFree(bytes); }
};

}  // namespace

std::string jpegOf(const Picture &picture) {
  const std::unique_ptr<void, Closed> compressor(tjInitCompress());
  unsigned char *bytes = nullptr;
  unsigned long size = 0;
  const int result = compressor
                         ? tjCompress2(compressor.get(), picture.rgb.data(), picture.width, 0, picture.height,
                                       TJPF_RGB, &bytes, &size, TJSAMP_444, kQuality, TJFLAG_ACCURATEDCT)
                         : -1;
  const std::unique_ptr<unsigned char, Closed> owned(bytes);
  if (result != 0)
    throw PlatformError(std::string("cannot encode a picture: ") + tjGetErrorStr2(compressor.get()));
  return {reinterpret_cast<const char *>(bytes), size};
}

}  // namespace vantorel
