#pragma once
// The face of Form5, "Offsets": a grid and the box that floats over its current cell.

#include <QLineEdit>
#include <QTableWidget>
#include <QWidget>

class OffsetsWindowWidget : public QWidget {
 public:
  explicit OffsetsWindowWidget(QWidget* parent);

 protected:
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  void ShowGrid();
  /// Brings the cell into sight and the box over it.
  void ShowBox();
  void PlaceBox();
  bool LeavesByTab(QEvent* event);

  QTableWidget* table_;
  QLineEdit* box_;
  bool changed_ = false;  ///< the grid holds what the table doesn't show yet
};
