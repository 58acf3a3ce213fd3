#include "controls/dialogs.h"

namespace {

std::string Cancelled(const std::string&, const std::string&, const std::string&) {
  return {};
}

Answer Closed(const std::string&, int, const std::string&) {
  return Answer::Ok;
}

}  // namespace

std::function<std::string(const std::string&, const std::string&, const std::string&)> InputBox = Cancelled;
std::function<Answer(const std::string&, int, const std::string&)> MsgBox = Closed;

void ResetDialogs() {
  InputBox = Cancelled;
  MsgBox = Closed;
}
