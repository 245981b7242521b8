// Several pictures on one sheet, so that they can be compared.
#pragma once

#include <QImage>
#include <QString>
#include <vector>

namespace quorvel::docs {

struct CaptionedPicture {
  QString caption;
  QImage picture;
};

// In rows from the left, pixel for pixel, each below its caption; a row is as wide as the widest picture and a little
// more, so that two of half that width stand side by side.
QImage DrawPictureSheet(const std::vector<CaptionedPicture>& pictures);

}  // namespace quorvel::docs
