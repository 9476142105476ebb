// Everything is at its exact place and its text fits there.
#include <QAbstractItemView>
#include <QComboBox>
#include <QFontMetrics>
#include <QMenuBar>
#include <QStyleOption>

#include "platform/qt/theme.h"
#include "tests/window_backend/fixture.h"

namespace {

using Placement = fixture::ShownWindow;

TEST_F(Placement, EverythingIsAtItsPlaceInItsParent) {
  const QMenuBar& bar = *top_->findChild<QMenuBar*>();
  EXPECT_EQ(Find<QWidget>("client").geometry(), QRect(0, bar.height(), 400, 300));
  EXPECT_EQ(top_->size(), QSize(400, 300 + bar.height()));
  EXPECT_EQ(top_->minimumSize(), top_->maximumSize());
  EXPECT_FALSE(top_->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
  for (const Control* control : window_.controls) {
    const auto& widget = Find<QWidget>(control->name.c_str());
    const Place& at = control->place;
    EXPECT_EQ(widget.geometry(), QRect(at.left, at.top, at.width, at.height)) << control->name;
    const std::string parent = control->parent == nullptr ? "client" : control->parent->name;
    EXPECT_EQ(widget.parentWidget()->objectName().toStdString(), parent) << control->name;
    EXPECT_TRUE(widget.isVisible()) << control->name;
  }
}

TEST_F(Placement, LabelsStandOnTheLineOfTheirNumbers) {
  window_.label.Caption("11");
  window_.box.Text("11");
  const auto line = [this](const char* name) {
    const QImage drawn = Find<QWidget>(name).grab().toImage();
    for (int y = drawn.height() - 1; y >= 0; --y) {
      for (int x = 0; x < drawn.width(); ++x) {
        if (qGray(drawn.pixel(x, y)) < 128) return y;
      }
    }
    return -1;
  };
  EXPECT_GT(line("label"), 8);
  EXPECT_EQ(line("label"), line("box"));
}

TEST(Wordings, FitTheirLabels) {
  struct Wording {
    const char* text;
    bool bold;
    int width, height;
  };
  for (const auto& [text, bold, width, height] : {Wording{"Texture Painter", true, 169, 25},
                                                  {"Object Properties", true, 129, 17},
                                                  {"Height", false, 40, 17},
                                                  {"Texture Stretcher Side Face", false, 145, 17},
                                                  {"Moving Platform Properties", true, 113, 33},
                                                  {"Direction", false, 48, 17},
                                                  {"Distance", false, 48, 17},
                                                  {"Ramp Properties", true, 129, 25}}) {
    const QFontMetrics metrics(qt::ControlFont(bold));
    const QRect needed = metrics.boundingRect({0, 0, width, 1000}, Qt::TextWordWrap, text);
    EXPECT_LE(needed.width(), width) << text;
    EXPECT_LE(needed.height(), height) << text;
  }
}

TEST_F(Placement, TextsFitTheirControls) {
  const QFontMetrics metrics = Find<QWidget>("button").fontMetrics();
  EXPECT_LE(metrics.horizontalAdvance("UnPause Platforms"), 113 - 8);
  EXPECT_LE(Find<QWidget>("check").sizeHint().width(), 105);
  EXPECT_LE(metrics.horizontalAdvance("2500"), 40 - 12);
  EXPECT_LE(metrics.height(), 19 - 4);

  auto& drop = Find<QComboBox>("drop");
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
