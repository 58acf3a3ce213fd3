#pragma once
// The face of Form1, the main window: menus, thumbnails, boxes, the main picture, the status bar.

#include <QMainWindow>
#include <QTimer>
#include <array>
#include <vector>

#include "controls/controls.h"

class QAction;
class QBoxLayout;
class QFrame;
class QGridLayout;
class QLabel;
class QLayout;
class PictureSurface;

class MainWindowWidget : public QMainWindow {
 public:
  MainWindowWidget();

 private:
  void BuildMenus();
  QWidget* BuildTopRow();
  void AddThumbnails(QBoxLayout* row);
  void SizeThumbnails(const QLayout& row);
  QWidget* BuildBoxes();
  void AddBulkheads(QBoxLayout* upper, QBoxLayout* lower);
  void AddSpinControls(QBoxLayout* row);
  void AddWaterAndResults(QBoxLayout* row);
  void BuildPicture();
  void BuildStatusBar();
  QAction* ActionOf(MenuItem& item) const;
  /// Frames the thumbnail of the view that the main picture shows.
  void MarkCurrentView();

  std::vector<std::pair<MenuItem*, QAction*>> actions_;
  std::array<QFrame*, 4> frames_{};  ///< around section, profile, plan, true view
  PictureSurface* picture_ = nullptr;
  QTimer refresh_;
};
