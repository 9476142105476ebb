// A message that the user must confirm.
#pragma once

#include <QMessageBox>
#include <QString>

namespace qt {

/// `text` as it is shown: every path that leads it stands on a line of its own, and words too long
/// for a line may break anywhere.
QString LaidOut(const QString& text);

/// Shows the whole text, however long. The label's accessible name is the text as it was given.
class MessageBox : public QMessageBox {
 public:
  MessageBox(QWidget* owner, const QString& title, const QString& text);
};

}  // namespace qt
