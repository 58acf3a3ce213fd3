#pragma once
// The face of Form3, "Save and Create Patterns".

#include <QEventLoop>
#include <QWidget>

class QBoxLayout;

class SaveWindowWidget : public QWidget {
 public:
  explicit SaveWindowWidget(QWidget* parent);

 protected:
  bool event(QEvent* event) override;

 private:
  QWidget* BuildFile();
  QWidget* BuildInformation();
  QWidget* BuildFrames();
  QWidget* BuildChecks();
  QBoxLayout* BuildButtons();
  void ShowModal();

  QEventLoop until_hidden_;
};
