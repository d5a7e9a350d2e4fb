#include <QApplication>

#include "screens/qt/application.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  screens::qt::DressApplication();
  screens::qt::Program program;
  screens::qt::RunHandler([&] { program.Start(); });
  return QApplication::exec();
}
