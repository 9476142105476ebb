// Notes over the picture: painted, read out, gone.
#include "platform/qt/picture_view.h"
#include "tests/window_backend/fixture.h"

namespace {

class Notes : public fixture::ShownWindow {
 protected:
  qt::PictureView& view_ = *qt::PictureView::Of(c.viewport);
  QImage Shown() {
    fixture::Settle();
    return view_.grab().toImage();
  }
  /// Rectangle of the pixels in which the view differs from a picture of one colour.
  QRect Painted(QRgb colour) {
    Image picture(c.viewport.ScaleWidth(), c.viewport.ScaleHeight(), colour);
    view_.Show(picture);
    const QImage shown = Shown();
    QRect painted;
    for (int i = 0; i < shown.width() * shown.height(); ++i) {
      const QPoint at(i % shown.width(), i / shown.width());
      if (shown.pixel(at) != colour) painted |= QRect(at, at);
    }
    return painted;
  }
};

TEST_F(Notes, StandAtTheLowerLeftOverAnyPictureAndGoAgain) {
  const QRect area = view_.rect();
  for (const QRgb colour : {0xFFFFFFFF, 0xFF000000, 0xFF8899AA}) {
    c.viewport.Notes({"0:07.3, 41 % of the way"});
    const QRect one = Painted(colour);
    EXPECT_TRUE(area.contains(one) && one.left() < 20 && one.bottom() > area.bottom() - 20);
    EXPECT_TRUE(one.height() > 12 && one.height() < 40 && one.width() > 60) << one.width();
    c.viewport.Notes({"one", std::string(400, 'w'), "three"});
    const QRect long_ = Painted(colour);
    EXPECT_TRUE(area.contains(long_) && long_.right() > area.right() - 30 &&
                long_.right() < area.right() - 4 && long_.height() > 2 * one.height());
    c.viewport.Notes({});
    EXPECT_TRUE(Painted(colour).isEmpty());
  }
}

TEST_F(Notes, AreReadOutAndMirroredOnChangeOnly) {
  c.viewport.Notes({"one", "zw\xC3\xB6lf"});
  EXPECT_EQ(view_.accessibleDescription(), QString::fromUtf8("one\nzw\xC3\xB6lf"));
  c.viewport.mirror = [mirror = c.viewport.mirror, this] {
    ++events_;
    mirror();
  };
  c.viewport.Notes({"one", "zw\xC3\xB6lf"});
  EXPECT_EQ(events_, 0);
  c.viewport.Notes({});
  EXPECT_EQ(events_, 1);
  EXPECT_EQ(view_.accessibleDescription(), "");
}

}  // namespace
