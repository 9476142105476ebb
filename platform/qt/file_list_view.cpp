#include "platform/qt/file_list_view.h"

#include <QMouseEvent>
#include <QPixmap>
#include <cmath>

#include "platform/error.h"
#include "platform/qt/images.h"

namespace qt {
namespace {

constexpr int kSide = 24;
constexpr int kRowHeight = kSide + 4;

// Damaged and missing files get an empty square, so that the names stay in line.
QPixmap LoadThumbnail(const std::filesystem::path& path, double scale) {
  const int side = static_cast<int>(std::lround(kSide * scale));
  QPixmap pixmap(side, side);
  pixmap.fill(Qt::transparent);
  try {
    const Image image = LoadImageFile(path.string());
    const QImage whole(reinterpret_cast<const uchar*>(image.pixels.data()), image.width,
                       image.height, QImage::Format_ARGB32);
    pixmap =
        QPixmap::fromImage(whole.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation));
  } catch (const std::exception&) {
    // The name alone still serves.
  }
  pixmap.setDevicePixelRatio(scale);
  return pixmap;
}

}  // namespace

void ThumbnailDelegate::Folder(const std::filesystem::path& folder) {
  folder_ = folder;
  icons_.clear();
}

QSize ThumbnailDelegate::sizeHint(const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const {
  return {RowDelegate::sizeHint(option, index).width(), kRowHeight};
}

void ThumbnailDelegate::initStyleOption(QStyleOptionViewItem* option,
                                        const QModelIndex& index) const {
  RowDelegate::initStyleOption(option, index);
  QIcon& icon = icons_[option->text];
  if (icon.isNull()) {
    const double scale = option->widget != nullptr ? option->widget->devicePixelRatioF() : 1.0;
    const QPixmap pixmap = LoadThumbnail(folder_ / option->text.toStdString(), scale);
    // A selected row keeps its picture's own colours.
    icon.addPixmap(pixmap, QIcon::Normal);
    icon.addPixmap(pixmap, QIcon::Selected);
  }
  option->icon = icon;
  option->decorationSize = QSize(kSide, kSide);
  option->features |= QStyleOptionViewItem::HasDecoration;
}

FileListView::FileListView(QWidget* parent, FileList& list) : QListWidget(parent) {
  setItemDelegate(&thumbnails_);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setTextElideMode(Qt::ElideRight);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(ScrollPerPixel);
  connect(this, &QListWidget::currentRowChanged, this, [&list](int row) { list.UserSelects(row); });
  connect(this, &QListWidget::doubleClicked, this,
          [&list](const QModelIndex& index) { list.UserDoubleClicks(index.row()); });
}

void FileListView::mouseDoubleClickEvent(QMouseEvent* event) {
  // The toolkit reports a double click of every button.
  if (event->button() == Qt::LeftButton) QListWidget::mouseDoubleClickEvent(event);
}

void FileListView::Show(const FileList& list) {
  QStringList names;
  for (const std::string& name : list.Entries()) names.append(QString::fromStdString(name));
  QStringList shown;
  for (int row = 0; row < count(); ++row) shown.append(item(row)->text());
  if (names != shown || folder_ != list.Folder()) {
    folder_ = list.Folder();
    thumbnails_.Folder(folder_);
    clear();
    addItems(names);
  }
  setCurrentRow(list.ListIndex());
}

}  // namespace qt
