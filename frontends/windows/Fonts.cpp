#include "windows/Fonts.h"

namespace quorvel::windows {
namespace {

using ParametersForDpiCall = BOOL(WINAPI*)(UINT, UINT, PVOID, UINT, UINT);

// Systems before Windows 10 have no such call: there is one resolution for all windows.
ParametersForDpiCall FindParametersForDpi() {
  const HMODULE user = GetModuleHandleW(L"user32.dll");
  const FARPROC found = user == nullptr ? nullptr : GetProcAddress(user, "SystemParametersInfoForDpi");
  return reinterpret_cast<ParametersForDpiCall>(reinterpret_cast<void*>(found));
}

LOGFONTW MessageFont(UINT dotsPerInch) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof(metrics);
  static const ParametersForDpiCall forDpi = FindParametersForDpi();
  if (forDpi != nullptr && forDpi(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0, dotsPerInch) != FALSE) {
    return metrics.lfMessageFont;
  }
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
  return metrics.lfMessageFont;
}

UniqueFont MakeFont(LOGFONTW font, LONG weight) {
  if (weight > font.lfWeight) font.lfWeight = weight;
  return UniqueFont(CreateFontIndirectW(&font));
}

}  // namespace

Fonts::Fonts(UINT dotsPerInch) {
  const LOGFONTW font = MessageFont(dotsPerInch);
  regular_ = MakeFont(font, font.lfWeight);
  bold_ = MakeFont(font, FW_BOLD);
  head_ = MakeFont(font, FW_SEMIBOLD);
  const ScreenDc screen;
  const FontOn drawing(screen.get(), regular());
  TEXTMETRICW metrics{};
  GetTextMetricsW(screen.get(), &metrics);
  lineHeight_ = metrics.tmHeight;
}

}  // namespace quorvel::windows
