// The least that a window program of this toolkit is.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  window.setWindowTitle("Empty window");
  window.resize(1180, 800);
  window.show();
  return QApplication::exec();
}
