#pragma once
// Texts as lines and as delimited items. A text is a whole file in memory: reading it can't fail
// half way, and no count that stands in a file decides how much is kept.

#include <cstddef>
#include <string>
#include <string_view>

/// All text files end their lines with CR LF.
inline constexpr std::string_view LineEnd = "\r\n";

/// Appends a line and its end.
inline void PutLine(std::string& out, std::string_view line) {
  out += line;
  out += LineEnd;
}

/// Walks through a text. CR LF, LF and CR all end a line.
class TextReader {
 public:
  explicit TextReader(std::string_view text) : text_(text) {}

  bool AtEnd() const { return at_ >= text_.size(); }

  /// Takes the rest of the current line. False, and the line is left as it was, at the end.
  bool ReadLine(std::string_view& line) {
    if (AtEnd()) {
      return false;
    }
    line = TakeLine();
    return true;
  }

  /// Takes one delimited item: leading blanks are skipped, and it ends at a comma or line end.
  /// False, and the item is left as it was, at the end.
  bool ReadItem(std::string_view& item) {
    SkipBlanks();
    if (AtEnd()) {
      return false;
    }
    item = Take([](char c) { return c == ','; });
    return true;
  }

  /// The same where an item may stand in quotation marks, which are taken off; a comma between them
  /// is part of it.
  bool ReadQuotedItem(std::string_view& item) {
    SkipBlanks();
    if (AtEnd() || text_[at_] != '"') {
      return ReadItem(item);
    }
    ++at_;
    item = Take([](char c) { return c == '"'; });
    std::string_view rest;
    if (text_[at_ - 1] == '"') {
      ReadItem(rest);
    }
    return true;
  }

  /// One delimited item where blanks part items too, as between the numbers of a calibration file.
  bool ReadBlankItem(std::string_view& item) {
    SkipBlanks();
    if (AtEnd()) {
      return false;
    }
    const std::size_t start = at_;
    item = Take([](char c) { return c == ',' || c == ' ' || c == '\t'; });
    at_ = start + item.size();
    SkipSeparator();
    return true;
  }

 private:
  void SkipBlanks() {
    while (!AtEnd() && (text_[at_] == ' ' || text_[at_] == '\t')) {
      ++at_;
    }
  }

  /// Blanks with at most one comma or line end among them part two items.
  void SkipSeparator() {
    SkipBlanks();
    if (!AtEnd() && (text_[at_] == ',' || text_[at_] == '\r' || text_[at_] == '\n')) {
      PassDelimiter();
    }
  }

  /// One character, or CR LF as one.
  void PassDelimiter() { at_ += text_.compare(at_, LineEnd.size(), LineEnd) == 0 ? 2 : 1; }

  /// The rest of the line. The next CR and the next LF are searched once each and remembered, which
  /// is much faster than to look at each character.
  std::string_view TakeLine() {
    const std::size_t start = at_;
    next_cr_ = Next('\r', next_cr_);
    next_lf_ = Next('\n', next_lf_);
    at_ = next_cr_ < next_lf_ ? next_cr_ : next_lf_;
    const std::string_view taken = text_.substr(start, at_ - start);
    if (!AtEnd()) {
      PassDelimiter();
    }
    return taken;
  }

  /// The first place of a character from here on, or the end; `known` if that still lies ahead.
  std::size_t Next(char wanted, std::size_t known) const {
    if (known >= at_ && known != Unknown) {
      return known;
    }
    const std::size_t found = text_.find(wanted, at_);
    return found == std::string_view::npos ? text_.size() : found;
  }

  /// Up to a line end or a character that parts items, which is passed over, CR LF as one.
  template <class PartsItems>
  std::string_view Take(PartsItems parts_items) {
    const std::size_t start = at_;
    while (!AtEnd() && text_[at_] != '\r' && text_[at_] != '\n' && !parts_items(text_[at_])) {
      ++at_;
    }
    const std::string_view taken = text_.substr(start, at_ - start);
    if (!AtEnd()) {
      PassDelimiter();
    }
    return taken;
  }

  static constexpr std::size_t Unknown = std::string_view::npos;

  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t next_cr_ = Unknown;
  std::size_t next_lf_ = Unknown;
};
