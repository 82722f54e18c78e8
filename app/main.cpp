#include <QApplication>

#include "ui/app/EditorApp.h"

// The editor runs in the project folder: it is started inside it, and
// every path it reads or writes is relative to it.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  velmora::cEditorApp editor;
  return editor.Run();
}
