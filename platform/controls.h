// The window's controls as plain objects: each holds its value, range, caption, enabled and
// checked state and has events. A toolkit builds widgets from them and mirrors both ways: it sets
// `mirror`, which runs after every change made here, and calls the members named User... for what
// the user does. Changes made by the program raise no events, except a scroll bar's.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// Pixels at 96 dots per inch, relative to the parent.
struct Place {
  int left = 0, top = 0, width = 0, height = 0;
  bool operator==(const Place&) const = default;
};

class Control {
 public:
  virtual ~Control() = default;
  Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  std::string name;            ///< object name
  std::string accessibleName;  ///< what a screen reader says; empty: the caption
  Place place;                 ///< a Window's place is not used
  Control* parent = nullptr;   ///< null: the window itself
  std::function<void()> mirror;

  bool Enabled() const { return enabled_; }
  void Enabled(bool enabled);

 protected:
  void Changed() const {
    if (mirror) mirror();
  }

 private:
  bool enabled_ = true;
};

/// A control with a text: label, frame, button.
class Captioned : public Control {
 public:
  const std::string& Caption() const { return caption_; }
  void Caption(std::string caption);

 private:
  std::string caption_;
};

class Label : public Captioned {
 public:
  bool bold = false;
};

class Frame : public Captioned {};

class Button : public Captioned {
 public:
  std::function<void()> onClick;
  void UserClicks() const;
};

class CheckBox : public Captioned {
 public:
  std::function<void()> onClick;
  bool Checked() const { return checked_; }
  void Checked(bool checked);
  /// Toggles, then raises the click.
  void UserClicks();

 private:
  bool checked_ = false;
};

/// Display only: what is typed into it changes nothing.
class TextBox : public Control {
 public:
  const std::string& Text() const { return text_; }
  void Text(std::string text);

 private:
  std::string text_;
};

class DropDown : public Control {
 public:
  std::vector<std::string> items;
  std::function<void()> onClick;
  /// −1: no entry.
  int ListIndex() const { return listIndex_; }
  /// An index without an entry selects none.
  void ListIndex(int index);
  void UserSelects(int index);

 private:
  int listIndex_ = -1;
};

/// Lines to choose one of.
class ItemList : public Control {
 public:
  std::function<void()> onClick;
  const std::vector<std::string>& Items() const { return items_; }
  /// No entry is selected.
  void Items(std::vector<std::string> items);
  /// −1: no entry.
  int ListIndex() const { return listIndex_; }
  /// An index without an entry selects none.
  void ListIndex(int index);
  /// The selected entry may be chosen again.
  void UserSelects(int index);

 private:
  std::vector<std::string> items_;
  int listIndex_ = -1;
};

/// The names of a folder's files that match a pattern.
class FileList : public Control {
 public:
  std::string pattern;
  std::function<void()> onDoubleClick;
  const std::string& Folder() const { return folder_; }
  /// Reads the folder's files; no entry is selected.
  void Folder(std::string folder);
  const std::vector<std::string>& Entries() const { return entries_; }
  int ListIndex() const { return listIndex_; }
  void ListIndex(int index);
  /// Name of the selected entry, empty when there is none.
  std::string FileName() const;
  void UserSelects(int index);
  void UserDoubleClicks(int index);

 private:
  std::string folder_;
  std::vector<std::string> entries_;
  int listIndex_ = -1;
};

class ScrollBar : public Control {
 public:
  int smallStep = 1, largeStep = 1;
  std::function<void()> onChange;
  int Minimum() const { return minimum_; }
  int Maximum() const { return maximum_; }
  void Range(int minimum, int maximum);
  int Value() const { return value_; }
  /// Raises onChange when the value changes. Throws std::out_of_range outside the range.
  void Value(int value);
  void UserScrolls(int value);

 private:
  int minimum_ = 0, maximum_ = 0, value_ = 0;
};

/// A pair of arrow buttons around a number.
class UpDown : public Control {
 public:
  std::function<void()> onUpClick, onDownClick;
  std::function<void()> onRelease;  ///< the user lets go of an arrow, which repeats while held
  int Minimum() const { return minimum_; }
  int Maximum() const { return maximum_; }
  void Range(int minimum, int maximum);
  int Value() const { return value_; }
  /// A value outside the range becomes the nearest one inside.
  void Value(double value);
  /// Steps by 1 inside the range, then raises the click, at the limit too.
  void UserClicks(bool up);
  void UserReleases() const;

 private:
  int minimum_ = 0, maximum_ = 0, value_ = 0;
};

enum class PointerShape : uint8_t { Arrow, Drag };

/// The picture that the device draws into.
class PictureArea : public Control {
 public:
  /// button: 1 left, 2 right, 4 middle; shift: mask of 1 Shift, 2 Ctrl, 4 Alt.
  std::function<void(int button, int shift, float x, float y)> onMouseDown;
  /// The mouse moves while the left button is held; it was let go.
  std::function<void(int shift, float x, float y)> onMouseDrag;
  std::function<void()> onMouseUp;
  /// Notches of the wheel, away from the user above 0; touch pads turn it by parts of one.
  std::function<void(double notches)> onWheel;
  std::string picture;  ///< path of the picture shown before the device has drawn; may be empty
  int ScaleWidth() const { return place.width; }
  int ScaleHeight() const { return place.height; }
  /// What the mouse pointer looks like over the picture.
  PointerShape Pointer() const { return pointer_; }
  void Pointer(PointerShape shape);
  /// Lines of text over the picture's lower left corner.
  const std::vector<std::string>& Notes() const { return notes_; }
  void Notes(std::vector<std::string> notes);
  void UserPresses(int button, int shift, float x, float y) const;
  void UserDrags(int shift, float x, float y) const;
  void UserReleases() const;
  void UserTurnsWheel(double notches) const;

 private:
  PointerShape pointer_ = PointerShape::Arrow;
  std::vector<std::string> notes_;
};

class MenuItem : public Captioned {
 public:
  std::string shortcut;       ///< "Ctrl+O", "F2"; empty: none
  std::string otherShortcut;  ///< does the same and is not shown
  bool checkable = false;     ///< has a place for a check mark
  std::vector<MenuItem*> items;
  std::function<void()> onClick;
  bool Checked() const { return checked_; }
  void Checked(bool checked);
  void UserClicks() const;

 private:
  bool checked_ = false;
};

/// A top-level window. The toolkit fills the functions of the second group.
class Window : public Captioned {
 public:
  int clientWidth = 0, clientHeight = 0;  ///< below the menu bar; the border is fixed
  std::vector<MenuItem*> menus;
  std::vector<Control*> controls;
  const Window* owner = nullptr;  ///< this window stays above its owner; null: it has none
  int insideOwner = 0;  ///< opens so far right of the owner's left edge; 0: amid the screen
  Button* defaultButton = nullptr;  ///< is focused when the window is shown; Enter, Escape click it
  std::function<void()> onUnload;   ///< the user closes the window
  /// Key messages arrive here before the focused control. The code is a virtual-key code; a
  /// handler that changes it keeps the key from the control. shift: mask of 1 Shift, 2 Ctrl, 4 Alt.
  std::function<void(int16_t& keyCode, int shift)> onKeyDown;
  /// Code 0: what was held counts as released, since another window has the keyboard.
  std::function<void(int16_t keyCode, int shift)> onKeyUp;

  std::function<void()> show, unload, takeFocus;
  /// Returns the key code that the handler leaves.
  int16_t UserPressesKey(int16_t keyCode, int shift) const;
  void UserReleasesKey(int16_t keyCode, int shift) const;
  void Show() const;
  void Unload() const;
  /// Gives the keyboard focus to the window itself.
  void SetFocus() const;
};

/// The queue of window messages: handlers run inside Pump only.
class MessagePump {
 public:
  virtual ~MessagePump() = default;
  /// Handles waiting messages; may sleep up to `waitMilliseconds` until one arrives.
  virtual void Pump(double waitMilliseconds) = 0;
};
