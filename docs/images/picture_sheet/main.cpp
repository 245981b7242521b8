// Writes a sheet of pictures, each captioned by the name of its file, into the PNG file that the first argument names.
#include <QFileInfo>
#include <QGuiApplication>
#include <iostream>

#include "PictureSheet.h"

int main(int argc, char* argv[]) {
  const QGuiApplication application(argc, argv);
  if (argc < 3) {
    std::cerr << "usage: quorvel_picture_sheet SHEET.png PICTURE.png...\n";
    return 2;
  }
  std::vector<quorvel::docs::CaptionedPicture> pictures;
  for (int i = 2; i < argc; ++i) {
    const QString file = QString::fromLocal8Bit(argv[i]);
    QImage picture(file);
    if (picture.isNull()) {
      std::cerr << "quorvel_picture_sheet: cannot read " << argv[i] << '\n';
      return 1;
    }
    picture.setDevicePixelRatio(1);
    pictures.push_back({QFileInfo(file).completeBaseName(), picture});
  }
  constexpr int kSmallestFile = 0;
  if (!quorvel::docs::DrawPictureSheet(pictures).save(QString::fromLocal8Bit(argv[1]), "PNG", kSmallestFile)) {
    std::cerr << "quorvel_picture_sheet: cannot write " << argv[1] << '\n';
    return 1;
  }
}
