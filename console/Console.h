// The console as a program: reads its arguments, opens its window, writes a picture of it.
#pragma once

#include <QString>
#include <QWidget>

namespace quorvel::console {

// Exit code 0: all went well; 1: the history could not be opened, the tab not chosen, the scenario not run, the
// picture or the report not written; 2: the arguments are not understood.
int RunConsole(int argc, char** argv);

// Writes what the window shows, or the control of it named `part`, as a PNG file and prints its name; says on the
// terminal when it cannot.
bool WritePicture(QWidget& window, const QString& file, const QString& part);

}  // namespace quorvel::console
