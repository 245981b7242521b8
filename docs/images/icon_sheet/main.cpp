// Writes the sheet of all icons into the PNG file that its only argument names.
#include <QGuiApplication>
#include <iostream>

#include "IconSheet.h"

int main(int argc, char* argv[]) {
  const QGuiApplication application(argc, argv);
  if (argc != 2) {
    std::cerr << "usage: quorvel_icon_sheet FILE.png\n";
    return 2;
  }
  constexpr int kSmallestFile = 0;
  if (!quorvel::docs::DrawIconSheet().save(QString::fromLocal8Bit(argv[1]), "PNG", kSmallestFile)) {
    std::cerr << "quorvel_icon_sheet: cannot write " << argv[1] << '\n';
    return 1;
  }
}
