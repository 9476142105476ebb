// What the program changes shows in the widgets; what the user does reaches the control objects.
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>

#include "tests/window_backend/fixture.h"

namespace {

using Mirroring = fixture::ShownWindow;

TEST_F(Mirroring, EverythingIsAtItsPlaceInItsParentAndLabelsHoldTheirTexts) {
  const QMenuBar& bar = *top_->findChild<QMenuBar*>();
  EXPECT_EQ(Find<QWidget>("client").geometry(), QRect(0, bar.height(), 800, 574));
  EXPECT_EQ(top_->size(), QSize(800, 574 + bar.height()));
  EXPECT_EQ(top_->minimumSize(), top_->maximumSize());
  for (const Control* control : window_.controls) {
    SCOPED_TRACE(control->name);
    const auto& widget = Find<QWidget>(control->name.c_str());
    const Place& at = control->place;
    EXPECT_EQ(widget.geometry(), QRect(at.left, at.top, at.width, at.height));
    const std::string parent = control->parent == nullptr ? "client" : control->parent->name;
    EXPECT_EQ(widget.parentWidget()->objectName().toStdString(), parent);
    EXPECT_TRUE(widget.isVisible());
    const auto* label = dynamic_cast<const Label*>(control);
    if (label == nullptr) continue;
    const QRect needed = widget.fontMetrics().boundingRect({0, 0, at.width, 1000}, Qt::TextWordWrap,
                                                           label->Caption().c_str());
    EXPECT_TRUE(needed.width() <= at.width && needed.height() <= at.height);
  }
}

TEST_F(Mirroring, LabelsStandOnTheLineOfTheirNumbers) {
  c.Label1.Caption("11");
  c.txt_height.Text("11");
  const auto line = [this](const char* name) {
    const QImage drawn = Find<QWidget>(name).grab().toImage();
    int last = 0;
    for (int i = 0; i < drawn.width() * drawn.height(); ++i) {
      if (qGray(drawn.pixel(i % drawn.width(), i / drawn.width())) < 128) last = i / drawn.width();
    }
    return last;
  };
  EXPECT_GT(line("Label1"), 8);
  EXPECT_EQ(line("Label1"), line("txt_height"));
}

TEST_F(Mirroring, CaptionsTextsAndFocus) {
  c.Label1.Caption("one & two");
  EXPECT_EQ(Find<QLabel>("Label1").text(), "one & two");
  c.mnu_copy.Caption("A & B");
  EXPECT_EQ(Find<QAction>("mnu_copy").text(), "A && B");
  c.txt_X.Text("-50");
  auto& box = Find<QLineEdit>("txt_X");
  box.setFocus();
  Type(Qt::Key_A);
  box.selectAll();
  EXPECT_EQ(box.selectedText(), "-50") << "it cannot be edited";
  Find<QComboBox>("Combo1").setFocus();
  c.Combo1.Enabled(false);
  EXPECT_TRUE(Find<QWidget>("client").hasFocus()) << "not the next control";
}

TEST_F(Mirroring, ScrollBarAndDropDownBothWays) {
  auto& bar = Find<QScrollBar>("VScroll1");
  c.VScroll1.onChange = count_;
  c.VScroll1.Value(700);
  EXPECT_EQ(bar.value(), 700);
  bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
  EXPECT_EQ(c.VScroll1.Value(), 701);
  bar.triggerAction(QAbstractSlider::SliderPageStepSub);
  EXPECT_EQ(c.VScroll1.Value(), 681);
  EXPECT_EQ(events_, 3);

  auto& drop = Find<QComboBox>("cmbo_Direction");
  c.cmbo_Direction.onClick = count_;
  EXPECT_EQ(drop.currentIndex(), -1);
  c.cmbo_Direction.ListIndex(1);
  EXPECT_EQ(drop.currentText(), "Right");
  EXPECT_EQ(events_, 3);
  emit drop.activated(0);
  EXPECT_TRUE(c.cmbo_Direction.ListIndex() == 0 && drop.currentIndex() == 0);
  EXPECT_EQ(events_, 4);
}

TEST_F(Mirroring, ClicksReachTheControls) {
  std::string clicks;
  c.UpDown1.onUpClick = [&] { clicks += "u"; };
  c.UpDown1.onDownClick = [&] { clicks += "d"; };
  for (const char* name : {"UpDown1_up", "UpDown1_down", "UpDown1_down"}) Click(name, {8, 5});
  EXPECT_EQ(clicks, "udd");
  EXPECT_EQ(c.UpDown1.Value(), 1);

  std::vector<std::array<float, 4>> presses;
  c.viewport.onMouseDown = [&](int button, int shift, float x, float y) {
    presses.push_back({static_cast<float>(button), static_cast<float>(shift), x, y});
  };
  Click("viewport", {3, 4});
  Click("viewport", {10, 20}, Qt::RightButton, Qt::ShiftModifier);
  Click("viewport", {0, 0}, Qt::MiddleButton, Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(presses, (decltype(presses){{1, 0, 3, 4}, {2, 1, 10, 20}, {4, 6, 0, 0}}));
}

TEST_F(Mirroring, MenuCheckMarkMovesOnlyWhenTheProgramMovesIt) {
  auto &edit = Find<QAction>("mnu_editmode"), &play = Find<QAction>("mnu_playmode");
  EXPECT_TRUE(play.isCheckable()) << "it shows an empty box before it is checked";
  play.trigger();
  EXPECT_TRUE(edit.isChecked() && !play.isChecked());
  c.mnu_editmode.Checked(false);
  c.mnu_playmode.Checked(true);
  EXPECT_TRUE(!edit.isChecked() && play.isChecked());
}

TEST_F(Mirroring, UserCannotCloseTheWindowButTheProgramCan) {
  window_.onUnload = count_;
  top_->close();
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

}  // namespace
