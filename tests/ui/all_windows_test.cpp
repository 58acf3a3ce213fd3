// What all five windows keep: nothing is clipped at any size, everything has a name, a small screen is
// enough, and dark desktops can read them.

#include <QApplication>
#include <QFrame>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <memory>

#include "controls/forms.h"
#include "support/program_test.h"
#include "ui/main_window.h"
#include "ui/nesting_window.h"
#include "ui/offsets_window.h"
#include "ui/open_window.h"
#include "ui/picture_surface.h"
#include "ui/save_window.h"
#include "ui/window_test.h"

namespace {

/// A screen of 1920 by 1080 at twice the size, less frame and panels.
constexpr QSize SmallScreen(940, 500);

QSize SmallestSize(const QWidget& window) {
  return window.minimumSizeHint().expandedTo(window.minimumSize()).expandedTo({300, 300});
}

QPalette DarkPalette() {
  QPalette dark(QColor(53, 53, 53), QColor(42, 42, 42));
  dark.setColor(QPalette::Base, QColor(35, 35, 35));
  dark.setColor(QPalette::AlternateBase, QColor(60, 60, 60));
  dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
    dark.setColor(role, Qt::white);
  }
  return dark;
}

class AllWindows : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    font = QApplication::font();
    palette = QApplication::palette();
  }
  void TearDown() override {
    windows.clear();
    QApplication::setFont(font);
    QApplication::setPalette(palette);
    ProgramTest::TearDown();
  }

  void Build() {
    windows.clear();
    windows.push_back(std::make_unique<MainWindowWidget>());
    windows.push_back(std::make_unique<OpenWindowWidget>(nullptr));
    windows.push_back(std::make_unique<SaveWindowWidget>(nullptr));
    windows.push_back(std::make_unique<OffsetsWindowWidget>(nullptr));
    windows.push_back(std::make_unique<NestingWindowWidget>());
    Form1.HScroll1.Visible = Form1.Combo1.Visible = true;
    Form4.Label4.Caption = std::string("Somebody");
    Form4.Label11.Caption = std::string("a hull with a long story, told in more words than go on one line");
    Form1.dummy8.Click();
  }

  std::vector<std::unique_ptr<QWidget>> windows;

 private:
  QFont font;
  QPalette palette;
};

TEST_F(AllWindows, FitASmallScreenAndGrowWithABigOne) {
  Build();
  for (const auto& window : windows) {
    SCOPED_TRACE(window->windowTitle().toStdString());
    ShowAt(*window, SmallestSize(*window));
    EXPECT_EQ(window->size().boundedTo(SmallScreen), window->size());
    ExpectNothingIsClipped(*window);
    ShowAt(*window, {1900, 1000});
    ExpectNothingIsClipped(*window);
  }
}

TEST_F(AllWindows, GrowWithTheFont) {
  QFont large = QApplication::font();
  large.setPointSizeF(1.4 * large.pointSizeF());
  QApplication::setFont(large);
  Build();
  for (const auto& window : windows) {
    SCOPED_TRACE(window->windowTitle().toStdString());
    ShowAt(*window, SmallestSize(*window));
    ExpectNothingIsClipped(*window);
  }
  const auto* offsets = Named<QTableWidget>(*windows[3], "Offsets");
  for (int row = 0; row < offsets->rowCount(); ++row) {
    for (int column = 0; column < offsets->columnCount(); ++column) {
      EXPECT_GE(offsets->columnWidth(column),
                offsets->sizeHintForIndex(offsets->model()->index(row, column)).width());
    }
  }
}

TEST_F(AllWindows, DrawingsStayWhiteAndTheRestFollowsADarkDesktop) {
  Build();
  for (const auto& window : windows) {
    ShowAt(*window);
  }
  QApplication::setPalette(DarkPalette());
  QCoreApplication::processEvents();
  int drawings = 0;
  for (const auto& window : windows) {
    EXPECT_LT(window->grab().toImage().pixelColor(2, window->height() / 2).lightness(), 80)
        << window->windowTitle().toStdString();
    for (auto* widget : window->findChildren<QWidget*>()) {
      auto* surface = dynamic_cast<PictureSurface*>(widget);
      if (surface == nullptr) {
        continue;
      }
      surface->Print("dark", 0);
      const QImage image = surface->grab().toImage();
      EXPECT_EQ(image.pixelColor(image.width() - 2, 1), QColor(Qt::white));
      EXPECT_GT(image.pixelColor(1, 1).lightness(), 200);
      ++drawings;
    }
  }
  EXPECT_EQ(drawings, 4 + 9 + 1);
  const QImage logo = Named<QPushButton>(*windows[0], "Spin view")->grab().toImage();
  EXPECT_EQ(logo.pixelColor(3, 3), QColor(Qt::white));

  const auto* offsets = Named<QTableWidget>(*windows[3], "Offsets");
  const QImage grid = offsets->viewport()->grab().toImage();
  EXPECT_LT(grid.pixelColor(4, 4).lightness(), 120) << "a heading under a light text";

  // The frame of the view that is shown stands out from the others, and these from the window.
  const auto* frame = qobject_cast<QFrame*>(Named<QPushButton>(*windows[0], "Spin view")->parentWidget());
  EXPECT_EQ(frame->palette().color(frame->foregroundRole()), DarkPalette().color(QPalette::Highlight));
}

}  // namespace
