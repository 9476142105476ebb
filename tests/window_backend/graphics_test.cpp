#include <QPixmap>

#include "platform/error.h"
#include "tests/window_backend/fixture.h"

namespace {

class Graphics : public fixture::ShownWindow {
 protected:
  void SetUp() override {
    adapter_ = fixture::Toolkit().CreateRoot()->CreateD3D();
    try {
      adapter_->GetDeviceCaps();
    } catch (const PlatformError& refusal) {
      EXPECT_EQ(refusal.code(), kErrorNotAvailable);
      GTEST_SKIP() << refusal.what();
    }
  }

  std::unique_ptr<GraphicsAdapter> adapter_;
};

TEST_F(Graphics, PresentedPictureAppearsInTheWindow) {
  const std::unique_ptr<Device> device = adapter_->CreateDevice(window_.picture, {});
  for (const uint32_t colour : {0xFF204060U, 0xFFC08040U}) {
    device->Clear(colour, 1.0F);
    device->BeginScene();
    device->EndScene();
    device->Present();
    const QImage shown = Find<QWidget>("picture").grab().toImage();
    EXPECT_EQ(shown.pixelColor(0, 0), QColor::fromRgb(colour));
    EXPECT_EQ(shown.pixelColor(shown.width() - 1, shown.height() - 1), QColor::fromRgb(colour));
  }
}

TEST_F(Graphics, OneSampleIsAlwaysPossible) {
  EXPECT_EQ(adapter_->GetDisplayMode(), DisplayFormat::X8R8G8B8);
  EXPECT_TRUE(adapter_->CheckMultisample(DisplayFormat::X8R8G8B8, 1));
  EXPECT_FALSE(adapter_->CheckMultisample(DisplayFormat::X8R8G8B8, 1000));
}

TEST_F(Graphics, PictureAreaWithoutAWindowIsRefused) {
  PictureArea elsewhere;
  EXPECT_THROW(adapter_->CreateDevice(elsewhere, {}), PlatformError);
}

}  // namespace
