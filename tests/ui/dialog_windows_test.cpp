// The windows Open, Save and Offsets: each kind of control reaches its handler.

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include "controls/forms.h"
#include "hull/figures.h"
#include "hull/hull_file.h"
#include "hull/hull_model.h"
#include "ui/control_faces.h"
#include "ui/offsets_window.h"
#include "ui/open_window.h"
#include "ui/picture_surface.h"
#include "ui/save_window.h"
#include "ui/window_test.h"

namespace {

QPoint RowOf(const QListWidget& list, const QString& text) {
  const QList<QListWidgetItem*> found = list.findItems(text, Qt::MatchExactly);
  EXPECT_EQ(found.size(), 1) << text.toStdString();
  return found.isEmpty() ? QPoint() : list.visualItemRect(found.front()).center();
}

/// Clicks on the little box before the words; the place behind them belongs to nobody.
void ClickBox(const QWidget& window, const QString& name) {
  auto* box = Named<QAbstractButton>(window, name);
  QTest::mouseClick(box, Qt::LeftButton, {}, {10, box->height() / 2});
}

class OpenWindowTest : public WindowTest<OpenWindowWidget> {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    OffX(2, 1) = 11.25;
    WriteHullFile("boat.tvh");
    OffX(2, 1) = 1;
    window = std::make_unique<OpenWindowWidget>(nullptr);
    Form4.Visible = true;
    ShowAt(*window);
  }
};

TEST_F(OpenWindowTest, AClickOpensAHullAndAnotherOpensItAnew) {
  auto* files = Named<QListWidget>(*window, "Hull files");
  for (int click = 0; click < 2; ++click) {
    QTest::mouseClick(files->viewport(), Qt::LeftButton, {}, RowOf(*files, "boat.tvh"));
    EXPECT_EQ(OffX(2, 1), 11.25) << "click " << click;
    OffX(2, 1) = 2;
  }
  EXPECT_EQ(Named<QLineEdit>(*window, "Open hull file")->text().toStdString(),
            (folder / "boat.tvh").string());
  QTest::keyClick(files, Qt::Key_Return);
  EXPECT_EQ(OffX(2, 1), 11.25) << "by the keyboard";
  OffX(2, 1) = 2;
  DoubleClick(*files, RowOf(*files, "boat.tvh"));
  EXPECT_EQ(OffX(2, 1), 11.25) << "and by an old habit";
}

TEST_F(OpenWindowTest, FoldersAndPlacesLeadToFiles) {
  std::filesystem::create_directories(folder / "old" / "older");
  Write("old/first.tvh", Read("boat.tvh"));
  auto* files = Named<QListWidget>(*window, "Hull files");
  auto* folders = Named<QListWidget>(*window, "Folders");
  Form4.Dir1.Path.Show();
  DoubleClick(*folders, RowOf(*folders, "old"));
  EXPECT_EQ(*Form4.Dir1.Path, (folder / "old").string());
  EXPECT_EQ(files->item(0)->text(), "first.tvh");
  DoubleClick(*folders, RowOf(*folders, ".."));
  EXPECT_EQ(*Form4.Dir1.Path, folder.string());

  auto* places = Named<QComboBox>(*window, "Drives and places");
  emit places->textActivated("/");
  EXPECT_EQ(*Form4.Dir1.Path, "/") << "the drive of the folder, chosen, leads to its root";
  QTest::keyClick(places, Qt::Key_Down);
  EXPECT_EQ(*Form4.Dir1.Path, Entered(QDir::homePath()));
}

TEST_F(OpenWindowTest, FiguresAreFramedAndTheRigIsTicked) {
  auto* figure = Named<PictureSurface>(*window, "Figure 2");
  const auto role = [&] { return figure->parentWidget()->foregroundRole(); };
  const QPalette::ColorRole dull = role();
  QTest::mouseClick(figure, Qt::LeftButton);
  EXPECT_EQ(FigureIndex, 1);
  EXPECT_NE(role(), dull);
  EXPECT_NE(window->windowTitle(), "Open");
  QTest::mouseClick(Named<QPushButton>(*window, "Flip the figure left to right"), Qt::LeftButton);
  const double x = FigureX(1);
  QTest::mouseClick(Named<QPushButton>(*window, "Flip the figure left to right"), Qt::LeftButton);
  EXPECT_EQ(FigureX(1), -x);
  QTest::mouseClick(figure, Qt::LeftButton);
  EXPECT_EQ(FigureIndex, -1);
  EXPECT_EQ(role(), dull);

  auto* deck = Named<QRadioButton>(*window, "Deck Step");
  auto* keel = Named<QRadioButton>(*window, "Keel Step");
  EXPECT_FALSE(deck->isChecked() || keel->isChecked()) << "nothing is chosen at first";
  ClickBox(*window, "Deck Step");
  ClickBox(*window, "Deck Step");
  EXPECT_TRUE(Form4.Option1.Value && deck->isChecked()) << "a second click keeps it";
  ClickBox(*window, "Keel Step");
  EXPECT_TRUE(Form4.Option2.Value && !deck->isChecked());
  ClickBox(*window, "OK");
  EXPECT_TRUE(Form4.Rig.Value);

  EXPECT_FALSE(window->close()) << "its close box does nothing";
  QTest::mouseClick(Named<QPushButton>(*window, "Done"), Qt::LeftButton);
  EXPECT_FALSE(window->isVisible());
}

class SaveWindowTest : public WindowTest<SaveWindowWidget> {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    window = std::make_unique<SaveWindowWidget>(nullptr);
  }

  /// Opens the dialog as the menu does and acts in it; false if it didn't come back by itself.
  bool ComesBackAfter(const std::function<void()>& act) const {
    bool by_itself = true;
    QTimer late;
    late.setSingleShot(true);
    late.callOnTimeout([&] {
      by_itself = false;
      Form3.Visible = false;
    });
    late.start(10000);
    QTimer::singleShot(0, window.get(), [&] {
      EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
      act();
    });
    Form1.Dummy4.Click();
    return by_itself;
  }
};

TEST_F(SaveWindowTest, KeepsTheUserUntilItIsHidden) {
  EXPECT_TRUE(ComesBackAfter([this] {
    EXPECT_TRUE(window->isVisible() && window->isModal());
    QTest::mouseClick(Named<QPushButton>(*window, "Cancel"), Qt::LeftButton);
  }));
  EXPECT_FALSE(window->isVisible());
  EXPECT_TRUE(ComesBackAfter([this] {
    auto* designer = Named<QLineEdit>(*window, "Designer");
    designer->setFocus();
    QTest::keyClick(designer, Qt::Key_Escape);
  }));
  EXPECT_FALSE(Exists("hull.dat"));
  EXPECT_TRUE(ComesBackAfter([this] { window->close(); }));
  EXPECT_TRUE(Exists("hull.dat")) << "closed for good";
  EXPECT_TRUE(ComesBackAfter([] { Form3.Visible = false; })) << "and it opens again";
}

TEST_F(SaveWindowTest, NamesComeByTypingAndByTheList) {
  WriteHullFile("other.tvh");
  EXPECT_TRUE(ComesBackAfter([this] {
    auto* name = Named<QLineEdit>(*window, "File name");
    name->setFocus();
    name->selectAll();
    QTest::keyClicks(name, "myboat");
    EXPECT_EQ(HullFileName, "myboat.tvh");
    EXPECT_EQ(name->cursorPosition(), 6) << "the typing goes on before the ending";
    auto* frame = Named<QLineEdit>(*window, "Z position of frame 8");
    QTest::keyClicks(frame, "-31.5");
    EXPECT_EQ(FrameZ[7], FramePlace(31.5));
    ClickBox(*window, "Expansions");
    QTest::keyClick(name, Qt::Key_Return);
    EXPECT_TRUE(Exists("myboat.tvh")) << "Enter saves";
    EXPECT_TRUE(window->isVisible()) << "without patterns the window stays";
    auto* files = Named<QListWidget>(*window, "Hull files");
    QTest::mouseClick(files->viewport(), Qt::LeftButton, {}, RowOf(*files, "other.tvh"));
    EXPECT_EQ(name->text().toStdString(), (folder / "other.tvh").string());
    Form3.Visible = false;
  }));
}

class OffsetsWindowTest : public WindowTest<OffsetsWindowWidget> {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    window = std::make_unique<OffsetsWindowWidget>(nullptr);
    Form1.dummy8.Click();
    ShowAt(*window);
    table = Named<QTableWidget>(*window, "Offsets");
    box = Named<QLineEdit>(*window, "Offset");
  }

  void ClickCell(int row, int column) const {
    const QModelIndex cell = table->model()->index(row, column);
    table->scrollTo(cell);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(cell).center());
  }
  void ExpectBoxAt(int row, int column) const {
    EXPECT_EQ(Form5.Grid1.Row(), row);
    EXPECT_EQ(Form5.Grid1.Col(), column);
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(box->geometry(), table->visualRect(table->model()->index(row, column)));
    EXPECT_TRUE(table->viewport()->rect().contains(box->geometry())) << "scrolled into sight";
    EXPECT_EQ(box->text().toStdString(), *Form5.Text1.Text);
    EXPECT_EQ(box->selectedText(), box->text());
  }
  QTableWidget* table = nullptr;
  QLineEdit* box = nullptr;
};

TEST_F(OffsetsWindowTest, TheBoxFollowsTheKeys) {
  EXPECT_FALSE(box->isVisible());
  ClickCell(6, 2);
  ExpectBoxAt(6, 2);
  QTest::keyClicks(box, "7-4+");
  EXPECT_EQ(OffX(2, 1), 7.5625);
  QCoreApplication::processEvents();
  EXPECT_EQ(table->item(6, 2)->text(), "7.5625");
  EXPECT_EQ(box->text(), "7-4+") << "what is typed stays as it is";

  QTest::keyClick(box, Qt::Key_Tab);
  ExpectBoxAt(6, 3);
  QTest::keyClick(box, Qt::Key_Return);
  ExpectBoxAt(7, 3);
  QTest::keyClick(box, Qt::Key_Backtab, Qt::ShiftModifier);
  ExpectBoxAt(7, 2);
  for (int key = 0; key < 20; ++key) {
    QTest::keyClick(box, Qt::Key_Return);
  }
  ExpectBoxAt(20, 2);
}

TEST_F(OffsetsWindowTest, AnOpenTableStaysAsItIsUntilItOpensAgain) {
  OffX(1, 0) = 3;
  Form1.Refresh();
  EXPECT_EQ(table->item(1, 2)->text(), "0.01");
  ClickCell(2, 2);
  EXPECT_TRUE(window->close());
  NumChines = 5;
  Form1.dummy8.Click();
  QCoreApplication::processEvents();
  EXPECT_EQ(table->rowCount(), 26);
  EXPECT_EQ(table->item(1, 2)->text(), "3.");
  EXPECT_FALSE(box->isVisible());
}

}  // namespace
