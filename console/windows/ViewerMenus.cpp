#include "console_windows/ViewerMenus.h"

#include <string>
#include <utility>

#include "control/Menus.h"
#include "platform/windows/WideText.h"
#include "windows/Guard.h"

namespace quorvel::console {
namespace {

constexpr UINT kFirstCommand = 0x200;
constexpr UINT kLastCommand = 0x2FF;

// Keys that the list itself understands. The menu only says so: text fields keep theirs.
const wchar_t* KeyOf(std::int32_t command) {
  switch (MenuCommand{command}) {
    case MenuCommand::kCopy:
      return L"\tCtrl+C";
    case MenuCommand::kSelectAll:
      return L"\tCtrl+A";
    default:
      return L"";
  }
}

bool IsSeparator(const widgets::MenuEntry& entry) {
  return entry.caption == "-";
}

// Where entries are hidden, separators meet: one of them is shown, and none at the ends.
std::vector<widgets::MenuEntry> EntriesToShow(const widgets::Menu& model) {
  std::vector<widgets::MenuEntry> shown;
  for (const widgets::MenuEntry& entry : model.entries()) {
    if (!entry.visible || (IsSeparator(entry) && (shown.empty() || IsSeparator(shown.back())))) continue;
    shown.push_back(entry);
  }
  if (!shown.empty() && IsSeparator(shown.back())) shown.pop_back();
  return shown;
}

void Append(HMENU menu, const widgets::MenuEntry& entry) {
  if (IsSeparator(entry)) {
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    return;
  }
  const std::wstring caption = windows::ToWide(entry.caption) + KeyOf(entry.command);
  AppendMenuW(menu, MF_STRING | (entry.enabled ? MF_ENABLED : MF_GRAYED),
              kFirstCommand + static_cast<UINT>(entry.command), caption.c_str());
}

}  // namespace

ViewerMenus::ViewerMenus(ucProcessLog& control, HMENU ofList, HMENU ofTree)
    : control_(control),
      parts_{{&control.controls().mnu_Popup, ofList, GetMenuItemCount(ofList)},
             {&control.controls().mnu_PopupTV, ofTree, GetMenuItemCount(ofTree)}} {
  Follow();
  control_.Subscribe(*this);
}

ViewerMenus::~ViewerMenus() {
  control_.Unsubscribe(*this);
}

void ViewerMenus::MajMenu() {
  windows::Guarded([&] { Follow(); });
}

void ViewerMenus::Follow() {
  for (Part& part : parts_) Follow(part);
}

void ViewerMenus::Follow(Part& part) {
  std::vector<widgets::MenuEntry> wanted = EntriesToShow(*part.model);
  if (wanted == part.shown) return;
  while (GetMenuItemCount(part.menu) > part.first) {
    DeleteMenu(part.menu, static_cast<UINT>(part.first), MF_BYPOSITION);
  }
  for (const widgets::MenuEntry& entry : wanted) Append(part.menu, entry);
  part.shown = std::move(wanted);
}

bool ViewerMenus::Run(UINT id) {
  if (id < kFirstCommand || id > kLastCommand) return false;
  auto command = static_cast<std::int32_t>(id - kFirstCommand);
  control_.m_MenuCall(command);
  return true;
}

}  // namespace quorvel::console
