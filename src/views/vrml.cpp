#include "views/vrml.h"

#include <algorithm>

#include "base/files.h"
#include "base/number_text.h"
#include "base/text_lines.h"
#include "controls/forms.h"
#include "hull/hull_model.h"

namespace {

constexpr double MetresPerInch = 0.0254;

/// Point and index lines begin at the second print zone.
constexpr std::string_view Zone = "              ";

/// Appends the texts of one face set: material, brackets, triangles.
class FaceSet {
 public:
  FaceSet(std::string& out, std::string_view material) : out_(out) {
    PutLine(out_, "   Material { diffuseColor " + std::string(material) + " }");
    PutLine(out_, "   IndexedFaceSet {");
    PutLine(out_, "      coordIndex [");
  }
  FaceSet(const FaceSet&) = delete;
  FaceSet& operator=(const FaceSet&) = delete;
  ~FaceSet() {
    PutLine(out_, "      ]");
    PutLine(out_, "   }");
  }

  void Put(int a, int b, int c, std::string_view before_last = ",") {
    out_ += Zone;
    AppendPrintText(out_, a);
    out_ += ',';
    AppendPrintText(out_, b);
    out_ += before_last;
    AppendPrintText(out_, c);
    PutLine(out_, ", -1 ,");
  }

 private:
  std::string& out_;
};

/// From a point to the one of the same place on the other half.
int OtherHalf() {
  return Stations * NumChines;
}

/// Calls with the first corner of each cell of the skin, between chine j + 1 and the next, station
/// s + 1 and the next.
template <class Take>
void ForEachCell(Take take) {
  for (int j = 0; j <= NumChines - 2; ++j) {
    for (int s = 0; s <= Stations - 2; ++s) {
      take(s + Stations * j);
    }
  }
}

/// Calls with the bulkhead's points on a chine and on the next.
template <class Take>
void ForEachBulkhead(Take take) {
  for (int j = 0; j <= NumChines - 2; ++j) {
    for (int b = 0; b < Bulkheads; ++b) {
      take(3 * b + Stations * j, 3 * b + Stations * (j + 1));
    }
  }
}

void PutHalf(std::string& out, double side) {
  for (int c = 1; c <= NumChines; ++c) {
    for (int s = 1; s <= Stations; ++s) {
      out += Zone;
      const double point[] = {HullPts(3, s, c), HullPts(2, s, c), side * HullPts(1, s, c)};
      for (const double inches : point) {
        AppendFixedText(out, inches * MetresPerInch, 3);
        out += ' ';
      }
      PutLine(out, ",");
    }
  }
}

void PutCamera(std::string& out) {
  const double length = HullPts(3, Stations, NumChines);
  PutLine(out, "PerspectiveCamera {");
  PutLine(out, "   position " + FixedText(0.5 * length * MetresPerInch, 2) + " " +
                   FixedText(HullMaxY * MetresPerInch, 2) + " " + FixedText(0.9 * length * MetresPerInch, 2));
  PutLine(out, "}");
}

void PutPoints(std::string& out) {
  PutLine(out, "   Coordinate3 {");
  PutLine(out, "      point [");
  PutHalf(out, 1);
  PutHalf(out, -1);
  PutLine(out, "      ]");
  PutLine(out, "   }");
}

/// Blue outside and rose inside. A face shows on the side from which its corners run anticlockwise,
/// so on the other half, a mirror image, the two orders change places.
void PutSkin(std::string& out) {
  constexpr std::string_view blue = "0.30 0.50 0.80 ";
  constexpr std::string_view rose = "0.80 0.50 0.50 ";
  for (const int half : {0, OtherHalf()}) {
    for (const std::string_view colour : {blue, rose}) {
      FaceSet set(out, colour);
      const bool as_on_first_half = (half == 0) == (colour == blue);
      ForEachCell([&](int k) {
        const int p = k + half;
        if (as_on_first_half) {
          set.Put(p, p + 1, p + 13);
          set.Put(p + 1, p + 14, p + 13);
        } else {
          set.Put(p, p + 13, p + 1);
          set.Put(p + 1, p + 13, p + 14);
        }
      });
    }
  }
}

/// The green set has a wider separator in every second triangle, the only place in the file.
void PutBulkheads(std::string& out) {
  const int H = OtherHalf();
  {
    FaceSet green(out, "0.00 0.70 0.00  transparency .5");
    ForEachBulkhead([&](int e, int f) {
      green.Put(e, f, f + H);
      green.Put(e, f + H, e + H, ", ");
    });
  }
  FaceSet dark(out, "0.20 0.20 0.20  transparency .5");
  ForEachBulkhead([&](int e, int f) {
    dark.Put(e, f + H, f);
    dark.Put(e, e + H, f + H);
  });
}

/// The strip between the lowest chines of both halves.
void PutBottom(std::string& out) {
  const int H = OtherHalf();
  {
    FaceSet blue(out, "0.00 0.00 0.70  transparency .85");
    for (int s = 0; s <= Stations - 2; ++s) {
      blue.Put(s + 1, s, s + H);
      blue.Put(s + 1, s + H, s + 1 + H);
    }
  }
  FaceSet red(out, "0.80 0.3 0.3  transparency .65");
  for (int s = 0; s <= Stations - 2; ++s) {
    red.Put(s + 1, s + H, s);
    red.Put(s + 1, s + 1 + H, s + H);
  }
}

/// The strip between the top chines; there is one set only.
void PutDeck(std::string& out) {
  const int T = Stations * (NumChines - 1);
  const int U = Stations * (2 * NumChines - 1);
  FaceSet dark(out, "0.10 0.10 0.10  transparency .80");
  for (int s = 0; s <= Stations - 2; ++s) {
    dark.Put(s + T, s + 1 + T, s + U);
    dark.Put(s + 1 + T, s + 1 + U, s + U);
  }
}

}  // namespace

std::string VrmlText() {
  std::string out;
  PutLine(out, "#VRML V1.0 ascii");
  PutCamera(out);
  PutLine(out, "Separator {  #  XYZ");
  PutPoints(out);
  PutSkin(out);
  PutBulkheads(out);
  PutBottom(out);
  PutDeck(out);
  PutLine(out, "}");
  return out;
}

std::string VrmlName(std::string_view hull_file) {
  const std::size_t dot = hull_file.find('.');
  std::string_view name = dot == std::string_view::npos ? "" : hull_file.substr(0, dot + 1);
  name.remove_prefix(std::min(name.find_first_not_of(' '), name.size()));
  return std::string(name) + "wrl";
}

void Command2_Click() {
  Form1.Refresh();
  const std::string name = VrmlName(HullFileName);
  WriteTextFile(name, VrmlText());
  CopyTextFile(name, "default.wrl");
}
