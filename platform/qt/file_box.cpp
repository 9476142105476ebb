#include "platform/qt/file_box.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTreeView>

namespace qt {
namespace {

constexpr int kLongestText = 255;
// The longest name of a file with nothing added to it, in bytes.
constexpr qsizetype kLongestName = 254;
constexpr int kWidth = 640, kHeight = 420;

}  // namespace

FileBox::FileBox(QWidget* owner, const dialogs::FileDialog& dialog, AcceptMode mode)
    : QFileDialog(owner) {
  // Without details hidden the pattern would be shown a second time.
  setOptions(options() | DontUseNativeDialog | HideNameFilterDetails | DontConfirmOverwrite);
  setWindowTitle(QString::fromStdString(dialog.title));
  setDirectory(QString::fromStdString(dialog.folder));
  setNameFilter(QString::fromStdString(dialog.filterText + " (" + dialog.pattern + ")"));
  setFileMode(AnyFile);
  setDefaultSuffix(QString::fromStdString(dialog.defaultExtension));
  setAcceptMode(mode);
  ArrangeColumns();
  resize(kWidth, kHeight);
  if (auto* name = findChild<QLineEdit*>("fileNameEdit")) {
    name->clear();
    name->setMaxLength(kLongestText);
    name->setFocus();
  }
}

void FileBox::ArrangeColumns() {
  constexpr int kName = 0, kSize = 1, kType = 2, kDate = 3;
  setViewMode(Detail);
  auto* view = findChild<QTreeView*>("treeView");
  if (view == nullptr) return;
  QHeaderView& header = *view->header();
  // No program has registered a type for tracks.
  header.hideSection(kType);
  header.setStretchLastSection(false);
  header.setSectionResizeMode(kName, QHeaderView::Stretch);
  for (const int column : {kSize, kDate}) {
    header.setSectionResizeMode(column, QHeaderView::ResizeToContents);
  }
}

void FileBox::accept() {
  const QString refusal = Refusal();
  if (refusal.isEmpty()) return QFileDialog::accept();
  dialogs::ShowMessage(refusal.toStdString());
}

QString FileBox::TypedName() const {
  const auto* name = findChild<QLineEdit*>("fileNameEdit");
  return name != nullptr ? name->text() : QString();
}

QString FileBox::Refusal() const {
  // The toolkit takes quotation marks for the ends of several names.
  const QString typed = TypedName();
  if (typed.contains('"')) return "A file name cannot contain a quotation mark.";
  QString name = typed.section('/', -1);
  if (!defaultSuffix().isEmpty() && !name.contains('.')) name += '.' + defaultSuffix();
  return name.toUtf8().size() > kLongestName ? "The file name is too long." : "";
}

}  // namespace qt
