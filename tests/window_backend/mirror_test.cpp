// What the program changes shows in the widgets; what the user does reaches the control objects.
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "tests/window_backend/fixture.h"

namespace {

class Mirroring : public fixture::ShownWindow {
 protected:
  QAction& Action(const char* name) { return Find<QAction>(name); }
  const std::function<void()> count_ = [this] { ++events_; };
  int events_ = 0;
};

TEST_F(Mirroring, CaptionsAndTexts) {
  window_.label.Caption("one & two");
  EXPECT_EQ(Find<QLabel>("label").text(), "one & two");
  window_.button.Caption("A & B");
  EXPECT_EQ(Find<QPushButton>("button").text(), "A && B");
  window_.box.Text("-50");
  auto& box = Find<QLineEdit>("box");
  box.setFocus();
  Type(Qt::Key_A);
  EXPECT_EQ(box.text(), "-50") << "it cannot be edited";
  box.selectAll();
  EXPECT_EQ(box.selectedText(), "-50");
  window_.Caption("Other");
  EXPECT_EQ(top_->windowTitle(), "Other");
  Find<QPushButton>("button").setFocus();
  window_.SetFocus();
  EXPECT_TRUE(Find<QWidget>("client").hasFocus());
  Find<QComboBox>("drop").setFocus();
  window_.drop.Enabled(false);
  EXPECT_TRUE(Find<QWidget>("client").hasFocus()) << "not the next control";
  EXPECT_EQ(Action("mnu_open").text(), "Copy && Keep");
  window_.open.Caption("Copy");
  EXPECT_EQ(Action("mnu_open").text(), "Copy");
}

TEST_F(Mirroring, CheckBoxBothWays) {
  auto& check = Find<QCheckBox>("check");
  window_.check.onClick = count_;
  window_.check.Checked(true);
  EXPECT_TRUE(check.isChecked());
  window_.check.Enabled(false);
  Click("check");
  EXPECT_FALSE(check.isEnabled());
  EXPECT_EQ(events_, 0);
  window_.check.Enabled(true);
  Click("check");
  EXPECT_FALSE(window_.check.Checked() || check.isChecked());
  EXPECT_EQ(events_, 1);
}

TEST_F(Mirroring, ScrollBarBothWays) {
  auto& bar = Find<QScrollBar>("bar");
  window_.bar.onChange = count_;
  window_.bar.Value(700);
  EXPECT_EQ(bar.value(), 700);
  EXPECT_EQ(events_, 1);
  bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
  EXPECT_EQ(window_.bar.Value(), 701);
  bar.triggerAction(QAbstractSlider::SliderPageStepSub);
  EXPECT_EQ(window_.bar.Value(), 681);
  EXPECT_EQ(events_, 3);
}

TEST_F(Mirroring, DropDownBothWays) {
  auto& drop = Find<QComboBox>("drop");
  window_.drop.onClick = count_;
  EXPECT_EQ(drop.currentIndex(), -1);
  window_.drop.ListIndex(1);
  EXPECT_EQ(drop.currentText(), "Right");
  EXPECT_EQ(events_, 0);
  emit drop.activated(0);
  EXPECT_TRUE(window_.drop.ListIndex() == 0 && drop.currentIndex() == 0);
  EXPECT_EQ(events_, 1);
}

TEST_F(Mirroring, ClicksReachTheControls) {
  std::string clicks;
  window_.upDown.onUpClick = [&] { clicks += "u"; };
  window_.upDown.onDownClick = [&] { clicks += "d"; };
  for (const char* name : {"upDown_up", "upDown_down", "upDown_down"}) Click(name, {8, 5});
  EXPECT_EQ(clicks, "udd");
  EXPECT_EQ(window_.upDown.Value(), 1);

  std::vector<std::array<float, 4>> presses;
  window_.picture.onMouseDown = [&](int button, int shift, float x, float y) {
    presses.push_back({static_cast<float>(button), static_cast<float>(shift), x, y});
  };
  Click("picture", {3, 4});
  Click("picture", {10, 20}, Qt::RightButton, Qt::ShiftModifier);
  Click("picture", {0, 0}, Qt::MiddleButton, Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(presses, (decltype(presses){{1, 0, 3, 4}, {2, 1, 10, 20}, {4, 6, 0, 0}}));
}

TEST_F(Mirroring, MenuCheckMarkMovesOnlyWhenTheProgramMovesIt) {
  EXPECT_TRUE(Action("mnu_low").isCheckable()) << "it shows an empty box before it is checked";
  window_.low.onClick = window_.normal.onClick = count_;
  Action("mnu_low").trigger();
  Action("mnu_normal").trigger();
  EXPECT_EQ(events_, 2);
  EXPECT_TRUE(Action("mnu_normal").isChecked());
  EXPECT_FALSE(Action("mnu_low").isChecked());
  window_.normal.Checked(false);
  window_.low.Checked(true);
  EXPECT_FALSE(Action("mnu_normal").isChecked());
  EXPECT_TRUE(Action("mnu_low").isChecked());
  EXPECT_FALSE(Action("mnu_open").isCheckable());
}

TEST_F(Mirroring, UserCannotCloseTheWindowButTheProgramCan) {
  window_.onUnload = count_;
  top_->close();
  EXPECT_EQ(events_, 1);
  EXPECT_TRUE(top_->isVisible());
  window_.Unload();
  EXPECT_FALSE(top_->isVisible());
  EXPECT_EQ(events_, 1) << "the program is not asked";
  window_.Show();
  EXPECT_TRUE(top_->isVisible());
  window_.onUnload = [this] { window_.Unload(); };
  top_->close();
  EXPECT_FALSE(top_->isVisible());
}

TEST_F(Mirroring, DiscardedControlsCanStillBeChanged) {
  fixture::SampleWindow window;
  fixture::Toolkit().Build(window);
  fixture::Toolkit().Discard(window);
  window.list.Folder("/");
  window.low.Checked(true);
  window.Show();
  EXPECT_TRUE(window.low.Checked());
}

}  // namespace
