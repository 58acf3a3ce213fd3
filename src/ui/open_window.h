#pragma once
// The face of Form4, "Open": the hull file, the figure for scale, the rig and the ballast.

#include <QWidget>
#include <array>

class QBoxLayout;
class QFrame;

class OpenWindowWidget : public QWidget {
 public:
  explicit OpenWindowWidget(QWidget* parent);

 private:
  QWidget* BuildFiles();
  QWidget* BuildFigures();
  QBoxLayout* BuildFigureButtons();
  QWidget* BuildRig();
  QWidget* BuildBallast();
  /// Frames the chosen figure.
  void MarkFigure();

  std::array<QFrame*, 9> frames_{};
};
