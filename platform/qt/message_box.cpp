#include "platform/qt/message_box.h"

#include <QGridLayout>
#include <QLabel>
#include <QTextBoundaryFinder>

namespace qt {
namespace {

constexpr QChar kBreak(0x200B);  // has no width
constexpr int kLongWord = 24;
constexpr int kRoomForTitle = 260;

QString Breakable(const QString& word) {
  QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, word);
  QString broken;
  qsizetype begin = 0;
  for (auto end = letters.toNextBoundary(); end > 0; end = letters.toNextBoundary()) {
    broken += word.sliced(begin, end - begin) + kBreak;
    begin = end;
  }
  return broken;
}

}  // namespace

QString LaidOut(const QString& text) {
  QString lines, rest = text;
  while (rest.startsWith('/')) {
    const qsizetype end = rest.indexOf(": ");
    if (end < 0) break;
    lines += rest.first(end + 1) + '\n';
    rest = rest.sliced(end + 2);
  }
  QStringList words = (lines + rest).split(' ');
  for (QString& word : words) {
    if (word.size() > kLongWord) word = Breakable(word);
  }
  return words.join(' ');
}

MessageBox::MessageBox(QWidget* owner, const QString& title, const QString& text)
    : QMessageBox(NoIcon, title, LaidOut(text), Ok, owner) {
  // A file's name in the text must not be read as markup.
  setTextFormat(Qt::PlainText);
  if (auto* label = findChild<QLabel*>("qt_msgbox_label")) label->setAccessibleName(text);
  // A width set on the label itself would let the box squeeze longer texts into it.
  if (auto* rows = qobject_cast<QGridLayout*>(layout())) {
    rows->addItem(new QSpacerItem(kRoomForTitle, 0), rows->rowCount(), 0, 1, rows->columnCount());
  }
}

}  // namespace qt
