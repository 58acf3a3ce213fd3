#include "manual_style.h"

#include <QImage>
#include <QTextCursor>
#include <QTextList>
#include <QUrl>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr double CodeSize = 8.5;
// Lines stand at even distances, also where one holds words in the other font; in pixels.
constexpr double BodyLine = 19;
constexpr double TableLine = 17;
constexpr double CodeLine = 16;
constexpr double HeadingSizes[] = {24, 15, 11.5, 10.5};

/// Wide pictures shrink to the text's width, high ones to most of a page; small ones keep their size.
QTextImageFormat Fitted(QTextImageFormat picture, const QTextDocument& document) {
  const QString name = document.baseUrl().resolved(QUrl(picture.name())).toLocalFile();
  const QImage image(name);
  if (image.isNull()) {
    Fail(name + ": expected a picture");
  }
  const double width = TextWidth * PixelsPerMm;
  const double height = 0.7 * TextHeight * PixelsPerMm;
  const double factor = std::min({1.0, width / image.width(), height / image.height()});
  picture.setWidth(image.width() * factor);
  picture.setHeight(image.height() * factor);
  return picture;
}

QTextCharFormat StyledText(QTextCharFormat text, const QTextBlock& block) {
  const int level = std::min(block.blockFormat().headingLevel(), 4);
  text.clearProperty(QTextFormat::FontSizeAdjustment);
  text.setForeground(level > 0 ? HeadingColour : TextColour);
  if (level > 0) {
    text.setFontPointSize(HeadingSizes[level - 1]);
    text.setFontWeight(QFont::DemiBold);
  }
  if (text.fontFixedPitch() || IsCode(block)) {
    text.setFontFamilies(CodeFonts);
    text.setFontPointSize(level > 0 ? HeadingSizes[level - 1] * CodeSize / BodySize : CodeSize);
  }
  if (text.isAnchor()) {  // what leads to another file of the source tree leads nowhere on paper
    const bool leads_out = text.anchorHref().startsWith("http");
    text.setAnchor(leads_out);
    text.setFontUnderline(false);
    text.setForeground(leads_out ? HeadingColour : TextColour);
    if (!leads_out) {
      text.clearProperty(QTextFormat::AnchorHref);
    }
  }
  return text;
}

void StyleFragments(const QTextBlock& block, const QTextDocument& document) {
  QList<QTextFragment> fragments;
  for (QTextBlock::iterator at = block.begin(); !at.atEnd(); ++at) {
    fragments.append(at.fragment());
  }
  for (const QTextFragment& fragment : fragments) {
    QTextCursor cursor(block);
    cursor.setPosition(fragment.position());
    cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
    const QTextCharFormat format = fragment.charFormat();
    cursor.setCharFormat(format.isImageFormat() ? Fitted(format.toImageFormat(), document)
                                                : StyledText(format, block));
  }
}

void SpaceBlock(const QTextBlock& block) {
  constexpr double before_heading[] = {0, 26, 16, 12};
  QTextBlockFormat format = block.blockFormat();
  const int level = std::min(format.headingLevel(), 4);
  if (level > 0) {
    format.setLineHeight(100, QTextBlockFormat::ProportionalHeight);
  } else {
    format.setLineHeight(BodyLine, QTextBlockFormat::FixedHeight);
  }
  format.setTopMargin(level > 0 ? before_heading[level - 1] : 0);
  format.setBottomMargin(level > 0 ? 7 : 8);
  if (block.textList() != nullptr) {
    format.setBottomMargin(block.next().textList() == block.textList() ? 3 : 8);
  }
  if (block.previous().isValid() && IsInTable(block.previous())) {
    format.setTopMargin(std::max(format.topMargin(), 12.0));
  }
  if (IsInTable(block)) {
    format.setTopMargin(0);
    format.setLineHeight(TableLine, QTextBlockFormat::FixedHeight);
    format.setBottomMargin(0);
  }
  if (HoldsPicture(block)) {
    format.setLineHeight(100, QTextBlockFormat::ProportionalHeight);
    format.setAlignment(Qt::AlignHCenter);
    format.setTopMargin(6);
  }
  if (IsCode(block)) {
    format.setBottomMargin(0);
    format.setLineHeight(CodeLine, QTextBlockFormat::FixedHeight);
    format.setNonBreakableLines(false);
    format.clearBackground();
  }
  QTextCursor(block).setBlockFormat(format);
}

void StyleTable(QTextTable& table) {
  QTextTableFormat format = table.format();
  format.setBorderCollapse(true);
  format.setBorder(1);
  format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  format.setBorderBrush(RuleColour);
  format.setCellPadding(4.5);
  format.setCellSpacing(0);
  format.setTopMargin(4);
  format.setBottomMargin(0);
  format.setHeaderRowCount(1);
  table.setFormat(format);
  for (int column = 0; column < table.columns(); ++column) {
    QTextTableCell head = table.cellAt(0, column);
    QTextCharFormat shade = head.format();
    shade.setBackground(ShadeColour);
    head.setFormat(shade);
    QTextCursor text = head.firstCursorPosition();
    text.setPosition(head.lastCursorPosition().position(), QTextCursor::KeepAnchor);
    QTextCharFormat bold;
    bold.setFontWeight(QFont::DemiBold);
    text.mergeCharFormat(bold);
  }
}

/// The pieces of code, each as a selection of its lines.
QList<QTextCursor> CodePieces(const QTextDocument& document) {
  QList<QTextCursor> pieces;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    if (IsCode(block)) {
      if (!IsCode(block.previous())) {
        pieces.append(QTextCursor(block));
      }
      pieces.last().setPosition(block.position() + block.length() - 1, QTextCursor::KeepAnchor);
    }
  }
  return pieces;
}

/// A box that is put around text leaves an empty line on either side.
void FlattenEmptyLine(const QTextBlock& block) {
  if (block.text().isEmpty()) {
    QTextBlockFormat flat;
    flat.setLineHeight(1, QTextBlockFormat::FixedHeight);
    QTextCursor(block).setBlockFormat(flat);
  }
}

/// Puts each piece of code into one shaded box.
void FrameCode(const QTextDocument& document) {
  QTextFrameFormat box;
  box.setBackground(ShadeColour);
  box.setPadding(6);
  box.setBottomMargin(6);
  for (QTextCursor& piece : CodePieces(document)) {
    const QTextFrame& frame = *piece.insertFrame(box);
    FlattenEmptyLine(frame.lastCursorPosition().block().next());
    FlattenEmptyLine(frame.firstCursorPosition().block().previous());
  }
}

}  // namespace

void Fail(const QString& what) {
  std::fprintf(stderr, "manual-pdf: %s\n", qPrintable(what));
  std::exit(1);
}

bool IsCode(const QTextBlock& block) {
  return block.blockFormat().hasProperty(QTextFormat::BlockCodeLanguage);
}

bool HoldsPicture(const QTextBlock& block) {
  return !block.begin().atEnd() && block.begin().fragment().charFormat().isImageFormat();
}

bool IsInTable(const QTextBlock& block) {
  return QTextCursor(block).currentTable() != nullptr;
}

QList<QTextTable*> Tables(const QTextDocument& document) {
  QList<QTextTable*> tables;
  for (QTextFrame* frame : document.rootFrame()->childFrames()) {
    if (auto* const table = qobject_cast<QTextTable*>(frame)) {
      tables.append(table);
    }
  }
  return tables;
}

void Style(QTextDocument& document) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    StyleFragments(block, document);
    SpaceBlock(block);
  }
  for (QTextTable* table : Tables(document)) {
    StyleTable(*table);
  }
  FrameCode(document);
}
