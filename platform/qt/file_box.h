// The dialog that asks for a file.
#pragma once

#include <QFileDialog>

#include "platform/dialogs.h"

namespace qt {

/// The toolkit's own dialog, the same everywhere. Refuses names that it would misread or that no
/// file can have, with a message, and stays open then.
class FileBox : public QFileDialog {
 public:
  FileBox(QWidget* owner, const dialogs::FileDialog& dialog, AcceptMode mode);

 protected:
  void accept() override;

 private:
  void ArrangeColumns();
  QString TypedName() const;
  /// Why the typed name cannot be used; empty when it can.
  QString Refusal() const;
};

}  // namespace qt
