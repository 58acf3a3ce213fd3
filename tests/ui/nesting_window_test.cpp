// The window of nesting: its list, its sliding picture, its keys, and pages on a printer.

#include <QListWidget>
#include <QPrinter>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include "controls/forms.h"
#include "nest/nest_model.h"
#include "nest/nest_pages.h"
#include "ui/control_faces.h"
#include "ui/nesting_window.h"
#include "ui/picture_surface.h"
#include "ui/printer.h"
#include "ui/window_test.h"

namespace {

class NestingWindowTest : public WindowTest<NestingWindowWidget> {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Write("handplot.txt", Joined({"Hand plotting file for boat.tvh        12:00:00", "X in.         Y in.",
                                  "board.uc      ____", "0.00          0.00", "10.00         0.000",
                                  "10.00         4.000", "0.00          4.00", "sail.uc       ____",
                                  "0.00          0.00", "6.00          0.00", "0.00          6.00", ""}));
    window = std::make_unique<NestingWindowWidget>();
    Form1.dummy15.Click();
    ShowAt(*window, {1000, 500});
    picture = Named<PictureSurface>(*window, "Sheets with parts");
  }

  QPoint OnPicture(double x, double y) const {
    const double across = picture->width() / picture->ScaleWidth();
    const double up = (picture->height() - 48 * across) / 2;  // the row lies in the middle
    return {qRound((x - picture->ScaleLeft()) * across), qRound(picture->height() - up - y * across)};
  }
  PictureSurface* picture = nullptr;
};

TEST_F(NestingWindowTest, EachClickOnARowTogglesItsPart) {
  auto* parts = Named<QListWidget>(*window, "Parts");
  ASSERT_EQ(parts->count(), 2);
  const QPoint sail = parts->visualItemRect(parts->item(1)).center();
  QTest::mouseClick(parts->viewport(), Qt::LeftButton, {}, sail);
  EXPECT_EQ(NestShown(2), 1);
  EXPECT_EQ(NestCurrent, 2);
  QTest::mouseClick(parts->viewport(), Qt::LeftButton, {}, sail);
  EXPECT_EQ(NestShown(2), 0);
  DoubleClick(*parts, sail);
  EXPECT_EQ(NestShown(2), 0) << "a double click is two clicks";
  QTest::keyClick(parts, Qt::Key_Space);
  EXPECT_EQ(NestShown(2), 1);
}

TEST_F(NestingWindowTest, TheMouseDragsAPartByItsHandle) {
  Form2.List1.SetListIndex(0);
  QTest::mousePress(picture, Qt::LeftButton, {}, OnPicture(5, 2));
  const QPoint target = OnPicture(40, 20);
  MoveMouse(*picture, target, Qt::LeftButton);
  QTest::mouseRelease(picture, Qt::LeftButton, {}, target);
  EXPECT_NEAR(NestPosX(1), 40, 0.2);
  EXPECT_NEAR(NestPosY(1), 20, 0.2);
  MoveMouse(*picture, OnPicture(45, 22), Qt::NoButton);
  EXPECT_TRUE(window->windowTitle().startsWith("board.uc: 4")) << window->windowTitle().toStdString();
}

TEST_F(NestingWindowTest, ThePictureSlidesAndFitsTheWindow) {
  const int wide = SlidingPicture::WidestView / 15;
  EXPECT_EQ(picture->geometry().x(), 0);
  EXPECT_EQ(picture->width(), wide);
  QTest::mouseClick(Named<QToolButton>(*window, "Slide the picture to the left"), Qt::LeftButton);
  EXPECT_EQ(picture->geometry().x(), -200);
  QTest::keyClick(Named<QListWidget>(*window, "Parts"), Qt::Key_Left);
  EXPECT_EQ(picture->geometry().x(), -400) << "an arrow key slides, too";
  int beeps = 0;
  Form2.Beep = [&] { ++beeps; };
  for (int i = 0; i < 4; ++i) {
    QTest::mouseClick(Named<QToolButton>(*window, "Slide the picture to the right"), Qt::LeftButton);
  }
  EXPECT_EQ(picture->geometry().x(), 200);
  EXPECT_EQ(beeps, 1);

  auto* view = Named<QPushButton>(*window, "View of the sheets");
  QTest::mouseClick(view, Qt::LeftButton);
  EXPECT_EQ(view->text(), "Full View");
  const QWidget* opening = picture->parentWidget();
  EXPECT_EQ(picture->geometry(), opening->rect()) << "the whole picture shows";
  window->resize(1100, 600);
  QCoreApplication::processEvents();
  EXPECT_EQ(picture->height(), opening->height());
  EXPECT_EQ(Form2.Width, 1100 * 15);
}

TEST_F(NestingWindowTest, EachSheetIsAPageOfThePrinter) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(Shown((folder / "sheets.pdf").string()));
  Form2.Option3.Value = true;
  EXPECT_TRUE(PrintOn(printer, NestPages(NestFit::Print)));
  const std::string pdf = Read("sheets.pdf");
  int pages = 0;
  for (std::size_t at = pdf.find("/Type /Page\n"); at != std::string::npos;
       at = pdf.find("/Type /Page\n", at + 1)) {
    ++pages;
  }
  EXPECT_EQ(pages, 5);
  printer.setOutputFileName(Shown((folder / "no-folder" / "sheets.pdf").string()));
  EXPECT_FALSE(PrintOn(printer, NestPages(NestFit::Prn)));
  EXPECT_FALSE(PrintOn(printer, {}));
}

}  // namespace
