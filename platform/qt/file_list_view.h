// The widget of a file list: names with small pictures beside them.
#pragma once

#include <QHash>
#include <QIcon>
#include <QListWidget>
#include <filesystem>
#include <string>

#include "platform/controls.h"
#include "platform/qt/row_delegate.h"

namespace qt {

/// Decodes a picture when its row is first painted and keeps it.
class ThumbnailDelegate : public RowDelegate {
 public:
  using RowDelegate::RowDelegate;
  /// Forgets the pictures and takes the next ones from `folder`.
  void Folder(const std::filesystem::path& folder);

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  std::filesystem::path folder_;
  mutable QHash<QString, QIcon> icons_;
};

class FileListView : public QListWidget {
 public:
  FileListView(QWidget* parent, FileList& list);
  void Show(const FileList& list);

 protected:
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  ThumbnailDelegate thumbnails_;
  std::string folder_;
};

}  // namespace qt
