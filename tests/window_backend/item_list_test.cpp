// Lists of lines: mirrored both ways, chosen by mouse and keyboard, cut short where they are long.
#include <QHelpEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QToolTip>

#include "editor/check_window/check_window.h"
#include "platform/clock.h"
#include "platform/qt/window_view.h"
#include "tests/window_backend/fixture.h"

namespace {

class ItemLists : public fixture::ShownWindow {
 protected:
  ItemLists() {
    checks_.window.owner = &c.frmMain;
    fixture::Toolkit().Build(checks_.window);
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == "frmCheck") window_ = widget;
    }
    checks_.window.Show();
    fixture::Settle();
    list_.onClick = [this] { chosen_.push_back(list_.ListIndex()); };
  }
  ~ItemLists() override { fixture::Toolkit().Discard(checks_.window); }

  QListWidget& View() { return *window_->findChild<QListWidget*>("lstFindings"); }
  void ClickRow(int row, Qt::MouseButton button = Qt::LeftButton) {
    const QPointF at = View().visualItemRect(View().item(row)).center();
    QWidget& port = *View().viewport();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      QMouseEvent event(type, at, port.mapToGlobal(at), button, button, {});
      QApplication::sendEvent(&port, &event);
    }
  }
  void Key(int key) {
    QKeyEvent event(QEvent::KeyPress, key, {});
    QApplication::sendEvent(&View(), &event);
  }

  SystemClock clock_;
  CheckWindow checks_{clock_};
  ItemList& list_ = checks_.lstFindings;
  QWidget* window_ = nullptr;
  std::vector<int> chosen_;
};

TEST_F(ItemLists, AreMirroredAndChosenByMouseAndKeys) {
  list_.Items({"one & two", "zw\xC3\xB6lf", std::string(200, 'w')});
  ASSERT_EQ(View().count(), 3);
  EXPECT_EQ(View().item(0)->text(), "one & two");
  EXPECT_EQ(View().item(1)->text(), QString::fromUtf8("zw\xC3\xB6lf"));
  EXPECT_EQ(View().currentRow(), -1);
  list_.ListIndex(2);
  EXPECT_EQ(View().currentRow(), 2);
  EXPECT_TRUE(chosen_.empty()) << "the program did it";
  ClickRow(1);
  ClickRow(1);
  ClickRow(0, Qt::RightButton);
  Key(Qt::Key_Down);
  Key(Qt::Key_Return);
  EXPECT_EQ(chosen_, (std::vector<int>{1, 1, 2, 2}));
  EXPECT_TRUE(window_->isVisible()) << "Enter was the list's";
  list_.Items({"one"});
  EXPECT_EQ(View().count() * 10 + View().currentRow(), 9) << "one line, none chosen";
  EXPECT_EQ(chosen_.size(), 4U);

  Key(Qt::Key_Escape);
  fixture::Settle();
  EXPECT_FALSE(window_->isVisible());
}

TEST_F(ItemLists, TellLongLinesWhole) {
  list_.Items({std::string(200, 'w'), "short"});
  fixture::Settle();
  for (const int row : {1, 0}) {
    const QPoint at = View().visualItemRect(View().item(row)).center();
    QHelpEvent event(QEvent::ToolTip, at, View().viewport()->mapToGlobal(at));
    QApplication::sendEvent(View().viewport(), &event);
    EXPECT_EQ(QToolTip::text(), row == 0 ? QString(200, 'w') : QString());
  }
}

}  // namespace
