// Makes the manual: manual-pdf FROM.md TO.pdf. The toolkit reads the text and lays it out; here is what it
// leaves open: a list of contents, page numbers, and headings that stay with the text below them. The look
// is in manual_style.cpp.

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextLayout>
#include <QUrl>

#include "manual_style.h"

namespace {

// Tables up to this part of a page are not cut.
constexpr double MostTable = 0.33;

QString ReadText(const QString& name) {
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) {
    Fail(name + ": " + file.errorString());
  }
  return QString::fromUtf8(file.readAll());
}

void StartPage(const QTextBlock& block) {
  QTextBlockFormat format = block.blockFormat();
  format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
  format.setTopMargin(0);
  QTextCursor(block).setBlockFormat(format);
}

bool StartsPage(const QTextBlock& block) {
  return block.blockFormat().pageBreakPolicy() == QTextFormat::PageBreak_AlwaysBefore;
}

int PageOf(const QTextDocument& document, double y) {
  return static_cast<int>(y / document.pageSize().height()) + 1;
}

QRectF RectOf(const QTextBlock& block) {
  return block.document()->documentLayout()->blockBoundingRect(block);
}

/// The page of one of a block's lines. A block may begin at the foot of a page with nothing but the space
/// that its first line did not fit in, so its own rectangle doesn't tell.
int PageOfLine(const QTextBlock& block, int line) {
  const QTextLayout& lines = *block.layout();
  const int last = lines.lineCount() - 1;
  const double y = last < 0 ? 0 : lines.lineAt(std::min(line, last)).y();
  return PageOf(*block.document(), RectOf(block).top() + y + 1);
}

/// What makes no sense at the foot of a page: a heading, a picture above its caption, "as follows:", and the
/// flat line between that and a box.
bool KeepsWithNext(const QTextBlock& block) {
  return !IsInTable(block) && (block.blockFormat().headingLevel() > 0 || HoldsPicture(block) ||
                               block.text().endsWith(':') || block.text().isEmpty());
}

/// The first block that must move for one to stay with what follows it.
QTextBlock StartOfChain(QTextBlock block) {
  while (!StartsPage(block) && block.previous().isValid() && KeepsWithNext(block.previous())) {
    block = block.previous();
  }
  return block;
}

/// Lays everything out anew: after a change the toolkit would keep pages that no longer hold.
void LayOutAgain(QTextDocument& document) {
  document.setPageSize({TextWidth * DotsPerMm, TextHeight * DotsPerMm});
}

/// Moves one heading to the next page, and says whether there was one to move. Each move changes all
/// pages behind it, so they are made one by one, from the first page on.
bool MoveOneHeading(const QTextDocument& document) {
  for (QTextBlock block = document.begin(); block.next().isValid(); block = block.next()) {
    if (!KeepsWithNext(block) ||
        PageOf(document, RectOf(block).bottom() - 1) == PageOfLine(block.next(), 1)) {
      continue;
    }
    const QTextBlock first = StartOfChain(block);
    if (!StartsPage(first)) {
      StartPage(first);
      return true;
    }
  }
  return false;
}

QList<QTextBlock> Chapters(const QTextDocument& document) {
  QList<QTextBlock> chapters;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 2) {
      chapters.append(block);
    }
  }
  return chapters;
}

/// Moves one table that a page's end would cut, unless it is so long that it would leave a hole.
bool MoveOneTable(const QTextDocument& document) {
  for (QTextTable* table : Tables(document)) {
    const QTextBlock before = document.findBlock(table->firstPosition()).previous();
    const QTextBlock last = table->lastCursorPosition().block();
    const double top = RectOf(before).bottom();
    const double bottom = RectOf(last).bottom();
    QTextTableFormat format = table->format();
    if (PageOf(document, top) == PageOf(document, bottom) ||
        bottom - top > MostTable * document.pageSize().height() ||
        format.pageBreakPolicy() == QTextFormat::PageBreak_AlwaysBefore) {
      continue;
    }
    if (!KeepsWithNext(before)) {
      format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
      table->setFormat(format);
      return true;
    }
    if (!StartsPage(StartOfChain(before))) {
      StartPage(StartOfChain(before));
      return true;
    }
  }
  return false;
}

/// The list of contents, in front of the first chapter; the numbers come when the pages are known.
void InsertContents(QTextDocument& document) {
  const QList<QTextBlock> chapters = Chapters(document);
  if (chapters.isEmpty()) {
    return;
  }
  QTextBlockFormat line;
  line.setTabPositions({QTextOption::Tab(TextWidth * PixelsPerMm - 1, QTextOption::RightTab)});
  QTextCharFormat text;
  text.setForeground(TextColour);
  QTextCursor cursor(chapters.first().previous());
  cursor.movePosition(QTextCursor::EndOfBlock);
  for (const QTextBlock& chapter : chapters) {
    line.setTopMargin(chapter == chapters.first() ? 32 : 8);
    cursor.insertBlock(line, text);
    cursor.insertText(chapter.text() + '\t');
  }
  StartPage(chapters.first());
}

/// The lines of the contents end right in front of the first chapter.
void NumberContents(QTextDocument& document) {
  const QList<QTextBlock> chapters = Chapters(document);
  QStringList pages;
  for (const QTextBlock& chapter : chapters) {
    pages.append(QString::number(PageOfLine(chapter, 0)));
  }
  for (qsizetype i = 0; i < chapters.size(); ++i) {
    const qsizetype line = chapters.first().blockNumber() - chapters.size() + i;
    QTextCursor cursor(document.findBlockByNumber(static_cast<int>(line)));
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.insertText(pages[i]);
  }
}

void LayOut(QTextDocument& document, QPdfWriter& paper) {
  document.documentLayout()->setPaintDevice(&paper);
  document.setDocumentMargin(0);
  InsertContents(document);
  do {
    LayOutAgain(document);
  } while (MoveOneHeading(document) || MoveOneTable(document));
  NumberContents(document);
  LayOutAgain(document);
}

void PaintFooter(QPainter& painter, const QString& title, int page) {
  const QRectF line(0, (PageHeight - TopMargin - FooterFromBottom) * DotsPerMm, TextWidth * DotsPerMm,
                    6 * DotsPerMm);
  QFont font(TextFonts);
  font.setPointSizeF(8.5);
  painter.setFont(font);
  painter.setPen(QPen(RuleColour, 0.2 * DotsPerMm));
  painter.drawLine(line.topLeft(), line.topRight());
  painter.setPen(TextColour);
  painter.drawText(line, Qt::AlignLeft | Qt::AlignBottom, title);
  painter.drawText(line, Qt::AlignRight | Qt::AlignBottom, QString::number(page));
}

void PaintPage(QPainter& painter, QTextDocument& document, int page) {
  const double height = document.pageSize().height();
  QAbstractTextDocumentLayout::PaintContext context;
  context.clip = QRectF(0, (page - 1) * height, document.pageSize().width(), height);
  context.palette.setColor(QPalette::Text, TextColour);
  painter.save();
  painter.translate(0, -(page - 1) * height);
  painter.setClipRect(context.clip);
  document.documentLayout()->draw(&painter, context);
  painter.restore();
}

void Paint(QTextDocument& document, QPdfWriter& paper, const QString& title) {
  QPainter painter;
  if (!painter.begin(&paper)) {
    Fail("could not write the file");
  }
  painter.translate(SideMargin * DotsPerMm, TopMargin * DotsPerMm);
  for (int page = 1; page <= document.pageCount(); ++page) {
    if (page > 1) {
      paper.newPage();
      PaintFooter(painter, title, page);
    }
    PaintPage(painter, document, page);
  }
}

void MakeManual(const QString& from, const QString& to) {
  QTextDocument document;
  QFont font(TextFonts);
  font.setPointSizeF(BodySize);
  document.setDefaultFont(font);
  document.setUseDesignMetrics(true);
  document.setIndentWidth(26);
  document.setBaseUrl(QUrl::fromLocalFile(QFileInfo(from).absoluteFilePath()));
  document.setMarkdown(ReadText(from), QTextDocument::MarkdownDialectGitHub);
  Style(document);
  const QString title = document.begin().text();
  QPdfWriter paper(to);
  paper.setResolution(PaperDotsPerInch);
  paper.setPageSize(QPageSize(QPageSize::A4));
  paper.setPageMargins(QMarginsF(0, 0, 0, 0));
  paper.setTitle(title);
  LayOut(document, paper);
  Paint(document, paper, title);
}

}  // namespace

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  if (arguments.size() != 3) {
    Fail("usage: manual-pdf FROM.md TO.pdf");
  }
  MakeManual(arguments[1], arguments[2]);
  return 0;
}
