#include "ui/main_window.h"

#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include "controls/dialogs.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "hydro/hydrostatics.h"
#include "ui/control_faces.h"
#include "ui/picture_surface.h"
#include "ui/window_test.h"
#include "views/spin_view.h"

namespace {

class MainWindowTest : public WindowTest<MainWindowWidget> {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    window = std::make_unique<MainWindowWidget>();
    ShowAt(*window, {1024, 700});
  }

  template <class Widget>
  Widget* Named(const QString& name) const {
    return ::Named<Widget>(*window, name);
  }

  void Choose(const QString& menu, const QString& item) const {
    for (const QAction* top : window->menuBar()->actions()) {
      if (top->text() == menu) {
        for (QAction* action : top->menu()->actions()) {
          if (action->text() == item) {
            action->trigger();
            return;
          }
        }
      }
    }
    ADD_FAILURE() << "no menu item " << item.toStdString();
  }

  /// Rows of pixels that hold at least so many of this colour.
  static std::vector<int> RowsWith(PictureSurface& surface, QRgb colour, int least) {
    const QImage image = surface.grab().toImage();
    std::vector<int> rows;
    for (int y = 0; y < image.height(); ++y) {
      int count = 0;
      for (int x = 0; x < image.width(); ++x) {
        count += image.pixel(x, y) == colour ? 1 : 0;
      }
      if (count >= least) {
        rows.push_back(y);
      }
    }
    return rows;
  }
};

constexpr QRgb LightBlue = 0xff0000ff;

TEST_F(MainWindowTest, EveryKindOfControlReachesItsHandler) {
  Choose("&View", "&Profile");
  EXPECT_TRUE(Form1.Profile.Checked);
  Choose("&View", "&True View");
  EXPECT_FALSE(Form1.TrueView.Checked);
  EXPECT_EQ(Named<QLabel>("Status panel 1")->text(), "false view");

  auto* chines = Named<QLineEdit>("Number of chines");
  QTest::mouseClick(Named<QToolButton>("Number of chines, up"), Qt::LeftButton);
  EXPECT_EQ(NumChines, 5);
  chines->selectAll();
  QTest::keyClicks(chines, "6");
  EXPECT_EQ(NumChines, 6);

  Form1.AutoSpline.Checked = false;
  auto* bulkhead = Named<QLineEdit>("Bulkhead 2: Z");
  bulkhead->selectAll();
  QTest::keyClicks(bulkhead, "61.5");
  EXPECT_TRUE(Form1.AutoSpline.Checked) << "any key";
  EXPECT_EQ(OffZ(1, 2), 58) << "typing alone moves nothing";
  QTest::keyClick(bulkhead, Qt::Key_Return);
  EXPECT_EQ(OffZ(1, 2), 61.5);
  EXPECT_EQ(OffZ(4, 2), 61.5);

  const double before = ViewPtsA(1, 13, 2);
  QTest::mouseClick(Named<QPushButton>("Spin in X and Y"), Qt::LeftButton);
  EXPECT_NE(ViewPtsA(1, 13, 2), before);
  EXPECT_FALSE(Form1.Profile.Checked) << "a spin button shows the spin view";
}

TEST_F(MainWindowTest, ArrowKeysSpinWhereverTheKeyboardIs) {
  auto* bulkhead = Named<QLineEdit>("Bulkhead 1: Z");
  bulkhead->setFocus();
  bulkhead->setCursorPosition(1);
  QTest::keyClick(bulkhead, Qt::Key_Right);
  EXPECT_LT(SpinStep, 0);
  EXPECT_TRUE(Named<QLineEdit>("Bulkhead 0, the stem: Z")->hasFocus());
  QTest::keyClick(window->focusWidget(), Qt::Key_Left);
  EXPECT_GT(SpinStep, 0);
  bulkhead->setFocus();
  bulkhead->setCursorPosition(0);
  const double before = SpinStep;
  QTest::keyClick(bulkhead, Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(SpinStep, before);
  EXPECT_GT(bulkhead->cursorPosition(), 0) << "with Control the cursor moves";
}

TEST_F(MainWindowTest, TheMouseDragsANode) {
  Choose("&View", "&Sections");
  auto* picture = Named<PictureSurface>("Drawing of the hull");
  // The two scales of a section differ by a hair, also with one scale on both axes.
  const double margin = ViewMargin;
  const double across = picture->width() / picture->ScaleWidth();
  const double up = picture->height() / (HullMaxY + 2 * margin);
  const QPoint node(qRound((30 + margin) * across), qRound(picture->height() - (14.5 + margin) * up));
  QTest::mousePress(picture, Qt::LeftButton, {}, node);
  EXPECT_EQ(CurStation, 2);
  const QPoint target = node + QPoint(qRound(2 * across), -qRound(up));
  MoveMouse(*picture, target, Qt::LeftButton);
  QTest::mouseRelease(picture, Qt::LeftButton, {}, target);
  EXPECT_NEAR(OffX(3, 2), 32, 1.5 / across);
  EXPECT_NEAR(OffY(3, 2), 15.5, 1.5 / up);
  EXPECT_TRUE(Named<QLabel>("Status panel 5")->text().endsWith('x'));
  picture->Scale(-1e308, 1, 1e308, 0);  // its width is no number
  QTest::mousePress(picture, Qt::LeftButton, {}, node);
  EXPECT_EQ(CurChine, 3) << "a press that has no place picks nothing, not even no node";
}

TEST_F(MainWindowTest, TheWaterlineStaysOnTheThumbnails) {
  Choose("&View", "&Profile");
  Choose("&Calculations", "&Waterline");
  auto* slider = Named<QSlider>("Waterline height");
  ASSERT_TRUE(slider->isVisible());
  slider->setValue(80);
  EXPECT_EQ(WaterlineY, 8);
  EXPECT_TRUE(Named<QComboBox>("Results")->isVisible());
  QCoreApplication::processEvents();
  for (const char* thumbnail : {"Click to edit Section view", "Click to edit Profile view"}) {
    auto* surface = Named<PictureSurface>(thumbnail);
    const int wide = static_cast<int>(surface->grab().toImage().width() * 0.9);
    EXPECT_EQ(RowsWith(*surface, LightBlue, wide).size(),
              static_cast<std::size_t>(surface->devicePixelRatioF()))
        << thumbnail;
  }
  auto* results = Named<QComboBox>("Results");
  results->setCurrentIndex(1);
  emit results->activated(1);
  slider->setValue(90);
  EXPECT_TRUE(results->currentText().startsWith("Displacement: ")) << results->currentText().toStdString();
}

TEST_F(MainWindowTest, ASliderNeverCorrectsAValueBelowItsMinimum) {
  Form1.HScroll1.SetMin(10);
  EXPECT_EQ(Form1.HScroll1.Value(), 1);
  EXPECT_EQ(Named<QSlider>("Waterline height")->value(), 10);
}

TEST_F(MainWindowTest, ClosingAsksAndCancelKeepsTheWindow) {
  std::vector<std::string> asked;
  Answer answer = Answer::Cancel;
  MsgBox = [&](const std::string& text, int, const std::string&) {
    asked.push_back(text);
    return answer;
  };
  bool unloaded = false;
  Form1.Unload = [&] { unloaded = true; };
  EXPECT_FALSE(window->close());
  EXPECT_FALSE(Exists("default.tvh"));
  answer = Answer::Yes;
  EXPECT_TRUE(window->close());
  EXPECT_TRUE(unloaded);
  EXPECT_TRUE(Exists("default.tvh"));
  EXPECT_EQ(asked, std::vector<std::string>(2, "Do you want to save to default.tvh?"));
}

TEST(PictureSurface, DrawsAtOnceKeepsItAndTakesExclusiveOrBack) {
  PictureBox box;
  PictureSurface surface(box, nullptr);
  surface.resize(100, 50);
  surface.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&surface));
  DrawSurface& picture = *box;
  picture.Cls();
  picture.Scale(0, 50, 100, 0);
  picture.Scale(3, 1, 3, 0);  // an empty range is refused
  picture.Line(0, 10.5, 100, 10.5, 9);
  const QImage before = surface.grab().toImage();
  const auto ratio = static_cast<int>(surface.devicePixelRatioF());
  EXPECT_EQ(before.pixelColor(50 * ratio, 39 * ratio), QColor(0, 0, 255));
  EXPECT_EQ(before.pixelColor(50 * ratio, 30 * ratio), QColor(Qt::white));
  picture.DrawMode(DrawSurface::Mode::ExclusiveOr);
  picture.Box(20, 5, 60, 30, 3);
  const QImage boxed = surface.grab().toImage();
  EXPECT_NE(boxed, before);
  EXPECT_EQ(boxed.pixelColor(30 * ratio, 20 * ratio), QColor(255, 127, 127)) << "cyan against white";
  picture.Box(20, 5, 60, 30, 3);
  picture.DrawMode(DrawSurface::Mode::Copy);
  EXPECT_EQ(surface.grab().toImage(), before);
  picture.Line(-1e300, 25, 1e300, 25, 1);
  picture.Line(0, 0, std::nan(""), 5, 12);
  picture.PSet(1e9, 1e9, 12);
  picture.Circle(1e12, 3, 1e12, 12, 0, DrawSurface::FullTurn);
  EXPECT_NE(surface.grab().toImage().pixelColor(50 * ratio, 25 * ratio), QColor(255, 0, 0));
}

}  // namespace
