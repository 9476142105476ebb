#include "platform/qt/picture_source.h"

#include <algorithm>
#include <cstring>

namespace qt {

PictureSource::PictureSource(std::string_view bytes) : bytes_(bytes) {
  // A buffer of the toolkit's would ask for more than the decoder does.
  open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 PictureSource::readData(char* to, qint64 most) {
  const qint64 got = std::clamp<qint64>(size() - pos(), 0, most);
  if (got > 0) std::memcpy(to, bytes_.data() + pos(), static_cast<size_t>(got));
  cameShort_ |= got < most;
  foundNothing_ |= got == 0 && most > 0;
  return got;
}

}  // namespace qt
