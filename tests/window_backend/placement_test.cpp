// Everything is at its exact place and its text fits there.
#include <QAbstractItemView>
#include <QComboBox>
#include <QFontMetrics>
#include <QLabel>
#include <QMenuBar>
#include <QStyleOption>

#include "tests/window_backend/fixture.h"

namespace {

using Placement = fixture::ShownWindow;

TEST_F(Placement, EverythingIsAtItsPlaceInItsParentAndLabelsHoldTheirTexts) {
  const QMenuBar& bar = *top_->findChild<QMenuBar*>();
  EXPECT_EQ(Find<QWidget>("client").geometry(), QRect(0, bar.height(), 800, 574));
  EXPECT_EQ(top_->size(), QSize(800, 574 + bar.height()));
  EXPECT_EQ(top_->minimumSize(), top_->maximumSize());
  EXPECT_FALSE(top_->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
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
    EXPECT_EQ(widget.font().bold(), label->bold);
    const QRect needed = widget.fontMetrics().boundingRect({0, 0, at.width, 1000}, Qt::TextWordWrap,
                                                           label->Caption().c_str());
    EXPECT_TRUE(needed.width() <= at.width && needed.height() <= at.height);
  }
}

TEST_F(Placement, LabelsStandOnTheLineOfTheirNumbers) {
  c.Label1.Caption("11");
  c.txt_height.Text("11");
  const auto line = [this](const char* name) {
    const QImage drawn = Find<QWidget>(name).grab().toImage();
    for (int y = drawn.height() - 1; y >= 0; --y) {
      for (int x = 0; x < drawn.width(); ++x) {
        if (qGray(drawn.pixel(x, y)) < 128) return y;
      }
    }
    return -1;
  };
  EXPECT_GT(line("Label1"), 8);
  EXPECT_EQ(line("Label1"), line("txt_height"));
}

TEST_F(Placement, TextsFitTheirControls) {
  const QFontMetrics metrics = Find<QWidget>("cmd_pause").fontMetrics();
  EXPECT_LE(metrics.horizontalAdvance("UnPause Platforms"), 113 - 8);
  EXPECT_LE(Find<QWidget>("Check_Loop").sizeHint().width(), 105);
  EXPECT_LE(metrics.horizontalAdvance("2500"), 40 - 12);
  EXPECT_LE(metrics.height(), 19 - 4);

  auto& drop = Find<QComboBox>("cmbo_Direction");
  QStyleOptionComboBox option;
  option.initFrom(&drop);
  const QRect field = drop.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                   QStyle::SC_ComboBoxEditField, &drop);
  EXPECT_LE(drop.fontMetrics().horizontalAdvance("Right"), field.width());
  EXPECT_LE(drop.fontMetrics().height(), field.height());
  EXPECT_GE(drop.view()->minimumWidth(), drop.fontMetrics().horizontalAdvance(drop.itemText(0)))
      << "the opened list holds the long entry";
}

}  // namespace
