#include <QCloseEvent>
#include <QPushButton>

#include "tests/window_backend/fixture.h"

namespace {

class Windows : public fixture::ShownWindow {};

TEST_F(Windows, UserCannotCloseItButTheHandlerCan) {
  int asked = 0;
  window_.onUnload = [&] { ++asked; };
  top_->close();
  EXPECT_EQ(asked, 1);
  EXPECT_TRUE(top_->isVisible());
  window_.onUnload = [this] { window_.Unload(); };
  top_->close();
  EXPECT_FALSE(top_->isVisible());
}

TEST_F(Windows, ProgramEndsItWithoutBeingAsked) {
  int asked = 0;
  window_.onUnload = [&] { ++asked; };
  window_.Unload();
  EXPECT_FALSE(top_->isVisible());
  EXPECT_EQ(asked, 0);
}

TEST_F(Windows, CanBeShownAgain) {
  window_.Unload();
  window_.Show();
  EXPECT_TRUE(top_->isVisible());
}

TEST_F(Windows, TakesTheFocusFromItsControls) {
  Find<QPushButton>("button").setFocus();
  window_.SetFocus();
  EXPECT_TRUE(Find<QWidget>("client").hasFocus());
}

TEST(DiscardedWindow, ItsControlsCanStillBeChanged) {
  fixture::SampleWindow window;
  fixture::Toolkit().Build(window);
  fixture::Toolkit().Discard(window);
  window.label.Caption("alone");
  window.list.Folder("/");
  window.low.Checked(true);
  window.Show();
}

}  // namespace
