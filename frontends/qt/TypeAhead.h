// Typing ahead in a view of Qt: the letters of key events, in one go or after a pause.
#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QString>

#include "qt/Convert.h"
#include "util/TypeAhead.h"

namespace quorvel::qt {

class TypedLetters {
 public:
  // For keyboardSearch: what was typed so far, this letter included.
  const util::TypeAhead& Type(const QString& letter) {
    const bool afresh = !sinceLast_.isValid() || sinceLast_.elapsed() >= QApplication::keyboardInputInterval();
    sinceLast_.start();
    typed_.Type(FromQt(letter), afresh);
    return typed_;
  }

 private:
  util::TypeAhead typed_;
  QElapsedTimer sinceLast_;
};

}  // namespace quorvel::qt
