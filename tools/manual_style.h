#pragma once
// The look of the manual: its page, its type, and the styles that its parts are given.

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>

// The page, in millimetres.
inline constexpr double PageWidth = 210;
inline constexpr double PageHeight = 297;
inline constexpr double SideMargin = 24;
inline constexpr double TopMargin = 22;
inline constexpr double BottomMargin = 26;
inline constexpr double FooterFromBottom = 14;
inline constexpr double TextWidth = PageWidth - 2 * SideMargin;
inline constexpr double TextHeight = PageHeight - TopMargin - BottomMargin;

// The toolkit's lengths inside a document are pixels of this many to the inch, whatever the paper has.
inline constexpr double PixelsPerMm = 96 / 25.4;
inline constexpr int PaperDotsPerInch = 1200;
inline constexpr double DotsPerMm = PaperDotsPerInch / 25.4;

inline constexpr double BodySize = 10;  // points
// The first of these that the machine has; the last ones come with every toolkit.
inline const QStringList TextFonts = {"Open Sans", "Noto Sans", "Segoe UI", "Helvetica Neue", "DejaVu Sans"};
inline const QStringList CodeFonts = {"DejaVu Sans Mono", "Noto Sans Mono", "Consolas", "Menlo", "monospace"};

inline const QColor TextColour(0x20, 0x20, 0x20);
inline const QColor HeadingColour(0x1b, 0x4f, 0x72);
inline const QColor RuleColour(0xb8, 0xc4, 0xcc);
inline const QColor ShadeColour(0xf0, 0xf4, 0xf7);

/// Tells what is wrong and ends the program.
[[noreturn]] void Fail(const QString& what);

bool IsCode(const QTextBlock& block);
bool HoldsPicture(const QTextBlock& block);
bool IsInTable(const QTextBlock& block);
/// The tables; none stands inside of something else.
QList<QTextTable*> Tables(const QTextDocument& document);

/// Gives all parts of a text just read their look; fails for a picture that isn't there.
void Style(QTextDocument& document);
