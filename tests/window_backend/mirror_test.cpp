// What the program changes shows in the widgets; what the user does reaches the control objects.
#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "tests/window_backend/fixture.h"

namespace {

using fixture::Click;
using fixture::ClickMiddle;

class Mirroring : public fixture::ShownWindow {
 protected:
  QAction& Action(const char* name) { return *top_->findChild<QAction*>(name); }
  int events_ = 0;
};

TEST_F(Mirroring, CaptionsAndTexts) {
  window_.label.Caption("one & two");
  EXPECT_EQ(Find<QLabel>("label").text(), "one & two");
  window_.button.Caption("A & B");
  EXPECT_EQ(Find<QPushButton>("button").text(), "A && B");
  window_.box.Text("-50");
  EXPECT_EQ(Find<QLineEdit>("box").text(), "-50");
  window_.Caption("Other");
  EXPECT_EQ(top_->windowTitle(), "Other");
}

TEST_F(Mirroring, TextBoxCannotBeEdited) {
  auto& box = Find<QLineEdit>("box");
  box.setFocus();
  fixture::TypeKey(*top_, Qt::Key_A);
  EXPECT_EQ(box.text(), "2500");
  box.selectAll();
  EXPECT_EQ(box.selectedText(), "2500");
}

TEST_F(Mirroring, EnabledState) {
  window_.check.Enabled(false);
  EXPECT_FALSE(Find<QCheckBox>("check").isEnabled());
  window_.check.onClick = [this] { ++events_; };
  ClickMiddle(Find<QCheckBox>("check"));
  EXPECT_EQ(events_, 0);
  window_.check.Enabled(true);
  EXPECT_TRUE(Find<QCheckBox>("check").isEnabled());
}

TEST_F(Mirroring, CheckBoxBothWays) {
  window_.check.onClick = [this] { ++events_; };
  window_.check.Checked(true);
  EXPECT_TRUE(Find<QCheckBox>("check").isChecked());
  EXPECT_EQ(events_, 0);
  Click(Find<QCheckBox>("check"), {6, 8});
  EXPECT_FALSE(window_.check.Checked());
  EXPECT_FALSE(Find<QCheckBox>("check").isChecked());
  EXPECT_EQ(events_, 1);
}

TEST_F(Mirroring, ScrollBarBothWays) {
  auto& bar = Find<QScrollBar>("bar");
  window_.bar.onChange = [this] { ++events_; };
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
  window_.drop.onClick = [this] { ++events_; };
  EXPECT_EQ(drop.currentIndex(), -1);
  window_.drop.ListIndex(1);
  EXPECT_EQ(drop.currentText(), "Right");
  EXPECT_EQ(events_, 0);
  emit drop.activated(0);
  EXPECT_EQ(window_.drop.ListIndex(), 0);
  EXPECT_EQ(drop.currentIndex(), 0);
  EXPECT_EQ(events_, 1);
}

TEST_F(Mirroring, UpDownReportsEachClick) {
  std::string clicks;
  window_.upDown.onUpClick = [&] { clicks += "u"; };
  window_.upDown.onDownClick = [&] { clicks += "d"; };
  ClickMiddle(Find<QAbstractButton>("upDown_up"));
  ClickMiddle(Find<QAbstractButton>("upDown_down"));
  ClickMiddle(Find<QAbstractButton>("upDown_down"));
  EXPECT_EQ(clicks, "udd");
  EXPECT_EQ(window_.upDown.Value(), 1);
}

TEST_F(Mirroring, PicturePressesCarryButtonModifiersAndPlace) {
  std::vector<std::array<float, 4>> presses;
  window_.picture.onMouseDown = [&](int button, int shift, float x, float y) {
    presses.push_back({static_cast<float>(button), static_cast<float>(shift), x, y});
  };
  auto& picture = Find<QWidget>("picture");
  Click(picture, {3, 4});
  Click(picture, {10, 20}, Qt::RightButton, Qt::ShiftModifier);
  Click(picture, {0, 0}, Qt::MiddleButton, Qt::ControlModifier | Qt::AltModifier);
  ASSERT_EQ(presses.size(), 3U);
  EXPECT_EQ(presses[0], (std::array<float, 4>{1, 0, 3, 4}));
  EXPECT_EQ(presses[1], (std::array<float, 4>{2, 1, 10, 20}));
  EXPECT_EQ(presses[2], (std::array<float, 4>{4, 6, 0, 0}));
}

TEST_F(Mirroring, MenuCheckMarkMovesOnlyWhenTheProgramMovesIt) {
  window_.low.onClick = [this] { ++events_; };
  window_.normal.onClick = [this] { ++events_; };
  Action("mnu_low").trigger();
  Action("mnu_normal").trigger();
  EXPECT_EQ(events_, 2);
  EXPECT_TRUE(Action("mnu_normal").isChecked());
  EXPECT_FALSE(Action("mnu_low").isChecked());

  window_.low.onClick = [this] {
    window_.normal.Checked(false);
    window_.low.Checked(true);
  };
  Action("mnu_low").trigger();
  EXPECT_FALSE(Action("mnu_normal").isChecked());
  EXPECT_TRUE(Action("mnu_low").isChecked());
}

TEST_F(Mirroring, MenuCaptionsAreLiteral) {
  EXPECT_EQ(Action("mnu_open").text(), "Copy && Keep");
  window_.open.Caption("Copy");
  EXPECT_EQ(Action("mnu_open").text(), "Copy");
}

}  // namespace
