#include "platform/controls.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "platform/dialogs.h"
#include "platform/paths.h"

void Control::Enabled(bool enabled) {
  enabled_ = enabled;
  Changed();
}

void Captioned::Caption(std::string caption) {
  caption_ = std::move(caption);
  Changed();
}

void Button::UserClicks() const { dialogs::Enter(onClick); }

void CheckBox::Checked(bool checked) {
  checked_ = checked;
  Changed();
}

void CheckBox::UserClicks() {
  Checked(!checked_);
  dialogs::Enter(onClick);
}

void TextBox::Text(std::string text) {
  text_ = std::move(text);
  Changed();
}

void DropDown::ListIndex(int index) {
  listIndex_ = index >= 0 && index < static_cast<int>(items.size()) ? index : -1;
  Changed();
}

void DropDown::UserSelects(int index) {
  ListIndex(index);
  dialogs::Enter(onClick);
}

void ItemList::Items(std::vector<std::string> items) {
  items_ = std::move(items);
  listIndex_ = -1;
  Changed();
}

void ItemList::ListIndex(int index) {
  listIndex_ = index >= 0 && index < static_cast<int>(items_.size()) ? index : -1;
  Changed();
}

void ItemList::UserSelects(int index) {
  ListIndex(index);
  dialogs::Enter(onClick);
}

void FileList::Folder(std::string folder) {
  folder_ = std::move(folder);
  entries_ = paths::FileNames(folder_);
  std::erase_if(entries_,
                [this](const std::string& name) { return !paths::MatchesPattern(name, pattern); });
  listIndex_ = -1;
  Changed();
}

void FileList::ListIndex(int index) {
  listIndex_ = index >= 0 && index < static_cast<int>(entries_.size()) ? index : -1;
  Changed();
}

std::string FileList::FileName() const {
  return listIndex_ < 0 ? std::string() : entries_[static_cast<size_t>(listIndex_)];
}

void FileList::UserSelects(int index) { ListIndex(index); }

void FileList::UserDoubleClicks(int index) {
  ListIndex(index);
  dialogs::Enter(onDoubleClick);
}

void ScrollBar::Range(int minimum, int maximum) {
  minimum_ = minimum;
  maximum_ = maximum;
  value_ = std::clamp(value_, minimum, maximum);
  Changed();
}

void ScrollBar::Value(int value) {
  if (value < minimum_ || value > maximum_) throw std::out_of_range("Invalid property value");
  if (value == value_) return;
  value_ = value;
  Changed();
  if (onChange) onChange();
}

void ScrollBar::UserScrolls(int value) {
  dialogs::Enter([&] { Value(value); });
}

void UpDown::Range(int minimum, int maximum) {
  minimum_ = minimum;
  maximum_ = maximum;
  Value(value_);
}

void UpDown::Value(double value) {
  value_ = std::isnan(value)
               ? minimum_
               : static_cast<int>(std::clamp<double>(std::nearbyint(value), minimum_, maximum_));
  Changed();
}

void UpDown::UserClicks(bool up) {
  Value(value_ + (up ? 1 : -1));
  dialogs::Enter(up ? onUpClick : onDownClick);
}

void UpDown::UserReleases() const { dialogs::Enter(onRelease); }

void PictureArea::UserPresses(int button, int shift, float x, float y) const {
  if (onMouseDown) dialogs::Enter([&] { onMouseDown(button, shift, x, y); });
}

void PictureArea::Pointer(PointerShape shape) {
  pointer_ = shape;
  Changed();
}

void PictureArea::Notes(std::vector<std::string> notes) {
  // Said anew in every frame, they seldom change.
  if (notes == notes_) return;
  notes_ = std::move(notes);
  Changed();
}

void PictureArea::UserDrags(int shift, float x, float y) const {
  if (onMouseDrag) dialogs::Enter([&] { onMouseDrag(shift, x, y); });
}

void PictureArea::UserReleases() const { dialogs::Enter(onMouseUp); }

void PictureArea::UserTurnsWheel(double notches) const {
  if (onWheel) dialogs::Enter([&] { onWheel(notches); });
}

void MenuItem::Checked(bool checked) {
  checked_ = checked;
  Changed();
}

void MenuItem::UserClicks() const { dialogs::Enter(onClick); }

int16_t Window::UserPressesKey(int16_t keyCode, int shift) const {
  if (onKeyDown) dialogs::Enter([&] { onKeyDown(keyCode, shift); });
  return keyCode;
}

void Window::UserReleasesKey(int16_t keyCode, int shift) const {
  if (onKeyUp) dialogs::Enter([&] { onKeyUp(keyCode, shift); });
}

void Window::Show() const {
  if (show) show();
}

void Window::Unload() const {
  if (unload) unload();
}

void Window::SetFocus() const {
  if (takeFocus) takeFocus();
}
