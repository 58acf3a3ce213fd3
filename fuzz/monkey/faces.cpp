#include "monkey/faces.h"

#include <string>

#include "controls/dialogs.h"
#include "controls/forms.h"
#include "monkey/sandbox.h"
#include "monkey/texts.h"

std::array<CheckedSurface, 3> Thumbnails{CheckedSurface("Form1.Picture1(0)", 136, 100),
                                         CheckedSurface("Form1.Picture1(1)", 136, 100),
                                         CheckedSurface("Form1.Picture1(2)", 136, 100)};
CheckedSurface MainPicture("Form1.Picture2");
CheckedSurface SheetPicture("Form2.Picture1");
bool ProgramEnded = false;

namespace {

CheckedSurface fixed_picture("Form1.Picture3");
CheckedSurface figure("Form4.Picture2");
CheckedSurface paper("the printer");

/// One in so many boxes is cancelled, and in so many the text that it offers is taken.
constexpr int CancelledInputs = 5;
constexpr int TakenOffers = 5;

std::string AnswerInput(Stream& stream, const std::string& prompt, const std::string& title,
                        const std::string& offered) {
  const bool asks_for_file = title == "Hand Plotting";
  std::string answer = asks_for_file ? FileNameText(stream) : NumberText(stream);
  if (stream.OneIn(CancelledInputs)) {
    answer.clear();
  } else if (stream.OneIn(TakenOffers)) {
    answer = offered;
  } else if (title == "Pitch Angle" || title == "Heel Angle") {
    answer = stream.IsOdd() ? OddText(stream) : std::to_string(stream.Below(91) - 30);
  }
  if (asks_for_file) {
    AllowFolderOf(answer);
  }
  Tell("- " + Quoted(prompt) + " is answered " + Quoted(answer));
  return answer;
}

Answer AnswerMessage(Stream& stream, int style) {
  switch (style & 7) {
    case 1: {
      const bool ok = !stream.OneIn(4);
      Tell(ok ? "- OK" : "- Cancel");
      return ok ? Answer::Ok : Answer::Cancel;
    }
    case 3: {
      const int answer = stream.Below(4);
      Tell(answer < 2 ? "- Cancel" : answer == 2 ? "- Yes" : "- No");
      return answer < 2 ? Answer::Cancel : answer == 2 ? Answer::Yes : Answer::No;
    }
    default:
      return Answer::Ok;
  }
}

/// The user stays in the window until it is hidden, and closes it in the end.
void StayInSaveWindow(Stream& stream, const std::function<void()>& act) {
  for (int left = stream.Below(20); left >= 0 && Form3.Visible && FirstFault().empty(); --left) {
    act();
  }
  if (Form3.Visible) {
    Tell("; Form3 is cancelled");
    Form3.Command2.Click();
  }
}

void PrintPages(Stream& stream, const PrintJob& job) {
  if (job.pages < 1 || job.pages > 5 || !job.paint) {
    NoteFault("a print job of " + std::to_string(job.pages) + " pages");
    return;
  }
  paper.width = stream.OneIn(2) ? 8.5 : 42;
  paper.height = 11;
  for (int page = 1; page <= job.pages; ++page) {
    job.paint(page, paper);
  }
}

void ShowSurfaces() {
  for (std::size_t i = 0; i < Thumbnails.size(); ++i) {
    Form1.Picture1[i] = &Thumbnails[i];
  }
  Form1.Picture2 = &MainPicture;
  Form1.Picture3 = &fixed_picture;
  fixed_picture.may_be_drawn_on = false;
  for (PictureBox& box : Form4.Picture2) {
    box = &figure;
  }
  Form2.Picture1 = &SheetPicture;
}

}  // namespace

void ShowFaces(Stream& stream, std::function<void()> act) {
  ShowSurfaces();
  ProgramEnded = false;
  Form1.Unload = [] { ProgramEnded = true; };
  InputBox = [&stream](const std::string& prompt, const std::string& title, const std::string& offered) {
    return AnswerInput(stream, prompt, title, offered);
  };
  MsgBox = [&stream](const std::string&, int style, const std::string&) {
    return AnswerMessage(stream, style);
  };
  Form3.ShowModal = [&stream, act = std::move(act)] {
    Form3.Visible = true;
    StayInSaveWindow(stream, act);
  };
  Form2.Print = [&stream](const PrintJob& job) { PrintPages(stream, job); };
}

void ResizeWindows(Stream& stream) {
  struct Size {
    double width;
    double height;
  };
  constexpr Size sizes[] = {{900, 600}, {1900, 1000}, {300, 150}, {150, 900}, {1, 1}, {0, 0}};
  const Size size = stream.Of(sizes);
  Tell("the windows are resized to " + std::to_string(static_cast<int>(size.width)) + " x " +
       std::to_string(static_cast<int>(size.height)));
  MainPicture.width = SheetPicture.width = size.width;
  MainPicture.height = SheetPicture.height = size.height;
  Form2.Width = static_cast<int>(size.width) * 15;
  Form1.Picture2.Refresh();
  Form2.Picture1.Refresh();
}

void CheckSurfaces() {
  for (const CheckedSurface& surface : Thumbnails) {
    surface.ExpectAtRest();
  }
  for (const CheckedSurface* surface : {&MainPicture, &SheetPicture, &fixed_picture, &figure, &paper}) {
    surface->ExpectAtRest();
  }
}
