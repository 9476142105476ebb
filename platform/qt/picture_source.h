// The bytes of a picture file as the decoders read them.
#pragma once

#include <QIODevice>
#include <string_view>

namespace qt {

/// Notices what the decoders pass over in silence: that they asked for more than there is.
class PictureSource : public QIODevice {
 public:
  /// The bytes must outlive the source.
  explicit PictureSource(std::string_view bytes);

  qint64 size() const override { return static_cast<qint64>(bytes_.size()); }
  /// Whether a read since the last Forget got less than it asked for, or nothing at all.
  bool CameShort() const { return cameShort_; }
  bool FoundNothing() const { return foundNothing_; }
  void Forget() { cameShort_ = foundNothing_ = false; }

 protected:
  qint64 readData(char* to, qint64 most) override;
  qint64 writeData(const char*, qint64) override { return -1; }

 private:
  std::string_view bytes_;
  bool cameShort_ = false, foundNothing_ = false;
};

}  // namespace qt
