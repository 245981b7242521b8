#include "scenario_windows/Painting.h"

#include <map>

namespace quorvel::scenario {
namespace {

// Beyond any place in a window. What is out of sight is painted too.
constexpr int kFar = 30000;

// Reads the record of what was painted.
struct Reader {
  std::map<DWORD, bool> fonts;  // by their number in the record, whether they are bold
  Painted now;

  // Whether this is the text.
  bool Read(const ENHMETARECORD& record) {
    switch (record.iType) {
      case EMR_EXTCREATEFONTINDIRECTW: {
        const auto& font = reinterpret_cast<const EMREXTCREATEFONTINDIRECTW&>(record);
        fonts[font.ihFont] = font.elfw.elfLogFont.lfWeight >= FW_BOLD;
        return false;
      }
      case EMR_SELECTOBJECT: {
        const auto font = fonts.find(reinterpret_cast<const EMRSELECTOBJECT&>(record).ihObject);
        if (font != fonts.end()) now.bold = font->second;
        return false;
      }
      case EMR_SETTEXTCOLOR:
        now.colour = reinterpret_cast<const EMRSETTEXTCOLOR&>(record).crColor;
        return false;
      case EMR_EXTTEXTOUTW:
        return reinterpret_cast<const EMREXTTEXTOUTW&>(record).emrtext.nChars > 0;
      default:
        return false;
    }
  }
};

int CALLBACK ReadRecord(HDC /*dc*/, HANDLETABLE* /*handles*/, const ENHMETARECORD* record, int /*count*/,
                        LPARAM reader) {
  return reinterpret_cast<Reader*>(reader)->Read(*record) ? 0 : 1;
}

}  // namespace

Painted PaintedBy(const std::function<void(HDC)>& paint) {
  const HDC dc = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
  const HRGN everywhere = CreateRectRgn(-kFar, -kFar, kFar, kFar);
  SelectClipRgn(dc, everywhere);
  DeleteObject(everywhere);
  paint(dc);
  const HENHMETAFILE painted = CloseEnhMetaFile(dc);
  Reader reader;
  EnumEnhMetaFile(nullptr, painted, &ReadRecord, &reader, nullptr);
  DeleteEnhMetaFile(painted);
  return reader.now;
}

}  // namespace quorvel::scenario
