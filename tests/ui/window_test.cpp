#include "ui/window_test.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "ui/picture_surface.h"

namespace {

/// Inside of such a widget the toolkit keeps the order.
bool IsInsideAControl(const QWidget* widget) {
  for (const QWidget* around = widget->parentWidget(); around != nullptr; around = around->parentWidget()) {
    if (qobject_cast<const QAbstractItemView*>(around) != nullptr ||
        qobject_cast<const QComboBox*>(around) != nullptr ||
        qobject_cast<const QMenuBar*>(around) != nullptr) {
      return true;
    }
  }
  return false;
}

bool IsControl(const QWidget* widget) {
  return qobject_cast<const QAbstractButton*>(widget) != nullptr ||
         qobject_cast<const QLineEdit*>(widget) != nullptr ||
         qobject_cast<const QAbstractSlider*>(widget) != nullptr ||
         qobject_cast<const QComboBox*>(widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(widget) != nullptr ||
         dynamic_cast<const PictureSurface*>(widget) != nullptr;
}

/// Where a widget is to be seen. A picture may be wider than the opening that it slides along in.
QRect PlaceIn(const QWidget& window, const QWidget* widget) {
  QRect place(widget->mapTo(&window, QPoint(0, 0)), widget->size());
  if (dynamic_cast<const PictureSurface*>(widget) != nullptr) {
    const QWidget* opening = widget->parentWidget();
    place &= QRect(opening->mapTo(&window, QPoint(0, 0)), opening->size());
  }
  return place;
}

void ExpectRoomForText(const QWidget* widget, const std::string& name) {
  const auto* label = qobject_cast<const QLabel*>(widget);
  const auto* button = qobject_cast<const QPushButton*>(widget);
  const auto* box = qobject_cast<const QLineEdit*>(widget);
  const QFontMetrics font = widget->fontMetrics();
  if (label != nullptr && label->wordWrap()) {
    EXPECT_GE(label->height(), label->heightForWidth(label->width())) << name;
  } else if (label != nullptr && label->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored) {
    EXPECT_GE(label->width(), label->sizeHint().width()) << name;
  } else if (button != nullptr && !button->text().isEmpty()) {
    EXPECT_GE(button->width(), font.horizontalAdvance(button->text()) + 8) << name;
  } else if (box != nullptr && box->minimumWidth() == box->maximumWidth()) {
    EXPECT_GE(box->width(), font.horizontalAdvance(box->text()) + 8) << name;
  } else if (qobject_cast<const QCheckBox*>(widget) != nullptr ||
             qobject_cast<const QRadioButton*>(widget) != nullptr) {
    EXPECT_GE(widget->width(), widget->sizeHint().width()) << name;
  }
  if (label != nullptr || button != nullptr || box != nullptr) {
    EXPECT_GE(widget->height(), font.height()) << name;
  }
}

}  // namespace

void ShowAt(QWidget& window, QSize size) {
  if (size.isValid()) {
    window.resize(size);
  }
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  QCoreApplication::processEvents();
  if (size.isValid()) {
    EXPECT_EQ(window.size(), size) << "the controls need more room";
  }
}

void MoveMouse(QWidget& widget, QPoint to, Qt::MouseButtons held) {
  QMouseEvent move(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, held, {});
  QApplication::sendEvent(&widget, &move);
}

void DoubleClick(const QListWidget& list, QPoint at) {
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
  QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, at);
}

void ExpectNothingIsClipped(QWidget& window) {
  std::vector<std::pair<QRect, std::string>> places;
  for (const auto* widget : window.findChildren<QWidget*>()) {
    const bool label = qobject_cast<const QLabel*>(widget) != nullptr;
    if (!widget->isVisible() || IsInsideAControl(widget) || !(IsControl(widget) || label)) {
      continue;
    }
    const auto* text = qobject_cast<const QLabel*>(widget);
    const std::string name = (label ? text->text() : widget->accessibleName()).toStdString();
    if (!label) {
      EXPECT_FALSE(name.empty()) << "a " << widget->metaObject()->className() << " without a name";
    }
    const QRect place = PlaceIn(window, widget);
    EXPECT_TRUE(window.rect().contains(place)) << name << " leaves the window";
    for (const auto& [other, other_name] : places) {
      EXPECT_FALSE(place.intersects(other)) << name << " covers " << other_name;
    }
    places.emplace_back(place, name);
    ExpectRoomForText(widget, name);
  }
  EXPECT_GT(places.size(), 0U);
}
