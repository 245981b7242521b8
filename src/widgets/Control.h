// What every standard control has: a name, a place, visibility, a text, and one observer that draws it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace quorvel::widgets {

// A twip is 1/1440 inch, 1/15 pixel at 96 dots per inch. All geometry is in twips; front ends scale it.
using Twips = std::int32_t;
inline constexpr Twips kTwipsPerPixel = 15;

struct Rect {
  Twips left = 0;
  Twips top = 0;
  Twips width = 0;
  Twips height = 0;

  Twips right() const { return left + width; }
  Twips bottom() const { return top + height; }
  friend bool operator==(const Rect&, const Rect&) = default;
};

class Control;

// Draws a control. Hears of a change after it was made.
class ControlObserver {
 public:
  virtual ~ControlObserver() = default;
  // Text, place, visibility or content of the control changed.
  virtual void ControlChanged(Control& control) = 0;
};

// Passive: it keeps what a user sees and tells its observer; gestures are the front end's, what they mean is decided by
// the owner of the control. Setting the value that is already there tells nobody.
class Control {
 public:
  explicit Control(std::string_view name) : name_(name) {}
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  // The name that the control has in the product, for example "tvMotherList".
  const std::string& name() const { return name_; }

  // Caption, or the text typed into it. In captions "&" marks the access key.
  const std::string& text() const { return text_; }
  void SetText(std::string_view text) { Set(text_, std::string(text)); }

  const std::string& toolTip() const { return toolTip_; }
  void SetToolTip(std::string_view text) { Set(toolTip_, std::string(text)); }

  bool visible() const { return visible_; }
  void SetVisible(bool visible) { Set(visible_, visible); }

  bool enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { Set(enabled_, enabled); }

  // The place within the control's container.
  const Rect& bounds() const { return bounds_; }
  void SetBounds(const Rect& bounds) { Set(bounds_, bounds); }

  // At most one; it must unregister (nullptr) before it goes. Not told of the state at registration.
  void Observe(ControlObserver* observer) { observer_ = observer; }

 protected:
  void Changed() {
    if (observer_ != nullptr) observer_->ControlChanged(*this);
  }

  template <class Value>
  void Set(Value& member, Value value) {
    if (member == value) return;
    member = std::move(value);
    Changed();
  }

 private:
  std::string name_;
  std::string text_;
  std::string toolTip_;
  bool visible_ = true;
  bool enabled_ = true;
  Rect bounds_;
  ControlObserver* observer_ = nullptr;
};

class Label : public Control {
 public:
  using Control::Control;
  bool bold() const { return bold_; }
  void SetBold(bool bold) { Set(bold_, bold); }

 private:
  bool bold_ = false;
};

// Controls that are no more than their place and text.
class Frame : public Control {
 public:
  using Control::Control;
};
class TextBox : public Control {
 public:
  using Control::Control;
};
// Many lines to be read; lines end with CR LF, "&" is a letter like any other.
class RichTextBox : public Control {
 public:
  using Control::Control;
};
// A grip or a bar: the two halves of a splitter, the square between two scroll bars.
class Grip : public Control {
 public:
  using Control::Control;
};

// A push button, with a picture instead of a caption where `picture` names an icon.
class Button : public Control {
 public:
  using Control::Control;
  const std::string& picture() const { return picture_; }
  void SetPicture(std::string_view icon) { Set(picture_, std::string(icon)); }

 private:
  std::string picture_;
};

class CheckBox : public Control {
 public:
  using Control::Control;
  bool checked() const { return checked_; }
  void SetChecked(bool checked) { Set(checked_, checked); }

 private:
  bool checked_ = false;
};

}  // namespace quorvel::widgets
