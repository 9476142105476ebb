// Everything is at its exact place and its text fits there.
#include <QAbstractItemView>
#include <QComboBox>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QStyleOption>

#include "platform/qt/theme.h"
#include "tests/window_backend/fixture.h"

namespace {

class Placement : public fixture::ShownWindow {};

TEST_F(Placement, ClientAreaLiesBelowTheMenuBarAndKeepsItsSize) {
  const QMenuBar& bar = *top_->findChild<QMenuBar*>();
  QWidget& client = Find<QWidget>("client");
  EXPECT_EQ(client.size(), QSize(400, 300));
  EXPECT_EQ(client.pos(), QPoint(0, bar.height()));
  EXPECT_EQ(top_->size(), QSize(400, 300 + bar.height()));
  EXPECT_EQ(top_->minimumSize(), top_->maximumSize());
  EXPECT_FALSE(top_->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
  EXPECT_TRUE(top_->windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
}

TEST_F(Placement, ControlsAreAtTheirPlacesInTheirParents) {
  for (const Control* control : window_.controls) {
    const auto& widget = Find<QWidget>(control->name);
    const Place& at = control->place;
    EXPECT_EQ(widget.geometry(), QRect(at.left, at.top, at.width, at.height)) << control->name;
    const QString parent =
        control->parent == nullptr ? "client" : QString::fromStdString(control->parent->name);
    EXPECT_EQ(widget.parentWidget()->objectName(), parent) << control->name;
    EXPECT_TRUE(widget.isVisible()) << control->name;
  }
}

struct Wording {
  const char* text;
  bool bold;
  int width, height;
};

TEST(Wordings, FitTheirLabels) {
  const Wording wordings[] = {{"Texture Painter", true, 169, 25},
                              {"Object Properties", true, 129, 17},
                              {"Height", false, 40, 17},
                              {"Texture Stretcher Top Face", false, 145, 17},
                              {"Texture Stretcher Side Face", false, 145, 17},
                              {"Moving Platform Properties", true, 113, 33},
                              {"Direction", false, 48, 17},
                              {"Distance", false, 48, 17},
                              {"Ramp Properties", true, 129, 25}};
  for (const Wording& wording : wordings) {
    const QFontMetrics metrics(qt::ControlFont(wording.bold));
    const QRect room(0, 0, wording.width, 1000);
    const QRect needed = metrics.boundingRect(room, Qt::TextWordWrap, wording.text);
    EXPECT_LE(needed.width(), wording.width) << wording.text;
    EXPECT_LE(needed.height(), wording.height) << wording.text;
  }
}

TEST_F(Placement, TextsFitTheirControls) {
  auto& button = Find<QPushButton>("button");
  EXPECT_LE(button.fontMetrics().horizontalAdvance(button.text()), button.width() - 8);
  auto& check = Find<QWidget>("check");
  EXPECT_LE(check.sizeHint().width(), check.width());
  auto& box = Find<QLineEdit>("box");
  EXPECT_LE(box.fontMetrics().horizontalAdvance("2500"), box.width() - 12);
  EXPECT_LE(box.fontMetrics().height(), box.height() - 4);

  auto& drop = Find<QComboBox>("drop");
  QStyleOptionComboBox option;
  option.initFrom(&drop);
  const QRect field = drop.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                   QStyle::SC_ComboBoxEditField, &drop);
  EXPECT_LE(drop.fontMetrics().horizontalAdvance("Right"), field.width());
  EXPECT_LE(drop.fontMetrics().height(), field.height());
}

TEST_F(Placement, OpenedListIsWideEnoughForItsEntries) {
  window_.drop.items = {"a very long entry that no narrow box can hold", "short"};
  window_.drop.ListIndex(1);
  const auto& drop = Find<QComboBox>("drop");
  EXPECT_GE(drop.view()->minimumWidth(), drop.fontMetrics().horizontalAdvance(drop.itemText(0)));
}

}  // namespace
