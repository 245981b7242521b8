// Small windows of the viewer that Windows does not have as such.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>

#include "windows/Surface.h"
#include "windows/Window.h"

namespace quorvel::windows {

// Holds other windows, and leads what they tell to who listens. Its window text is what a screen reader says of it.
class Frame : public Window {
 public:
  Frame(Surface& surface, HWND parent, const wchar_t* name);
  ~Frame() override { End(); }
  Frame(const Frame&) = delete;
  Frame& operator=(const Frame&) = delete;

 protected:
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
  // On the background.
  virtual void Paint(HDC /*dc*/) {}
  Surface& surface() { return surface_; }

 private:
  Surface& surface_;
};

// A frame whose caption stands along its top edge as the head of a section.
class SectionFrame final : public Frame {
 public:
  using Frame::Frame;
  // `height`: how much of the frame the caption has for itself, in pixels.
  void SetCaption(std::wstring caption, int height);

 protected:
  void Paint(HDC dc) override;

 private:
  std::wstring caption_;
  int captionHeight_ = 0;
};

// One colour of the system: the bar that follows a splitter's drag, the square between two scroll bars.
class Plain final : public Window {
 public:
  Plain(HWND parent, int systemColour);
  ~Plain() override { End(); }
  Plain(const Plain&) = delete;
  Plain& operator=(const Plain&) = delete;

 protected:
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  int colour_;
};

// The grip between two panes. Pixels are counted from its left edge. With the focus, which it gets from its owner
// alone, Left and Right move it; Enter and Escape are the end of that.
class SplitterGrip final : public Window {
 public:
  struct Gestures {
    std::function<void()> begin;
    std::function<void(int)> move;
    std::function<void()> end;
    std::function<void()> leave;
  };
  SplitterGrip(Gestures gestures, Surface& surface, HWND parent);
  ~SplitterGrip() override { End(); }
  SplitterGrip(const SplitterGrip&) = delete;
  SplitterGrip& operator=(const SplitterGrip&) = delete;

 protected:
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  std::optional<LRESULT> TakeKey(WPARAM key);
  void MoveBy(int pixels);
  void Release();
  void Paint() const;

  Gestures gestures_;
  Surface& surface_;
  bool held_ = false;
};

}  // namespace quorvel::windows
