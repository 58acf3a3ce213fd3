#pragma once
// The face of Form2, "Pattern Nesting": the row of sheets, the parts, the buttons.

#include <QWidget>

class QBoxLayout;
class PictureSurface;

class NestingWindowWidget : public QWidget {
 public:
  NestingWindowWidget();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  QBoxLayout* BuildTools();
  QBoxLayout* BuildSheetRow();
  QBoxLayout* BuildPartRow();
  QBoxLayout* BuildPicture();
  /// Puts the picture where the core slides it, in the opening that the window has for it.
  void PlacePicture();

  QWidget* opening_ = nullptr;
  PictureSurface* picture_ = nullptr;
};
