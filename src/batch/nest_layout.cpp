#include "batch/nest_layout.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <nlohmann/json.hpp>
#include <set>
#include <stdexcept>

#include "base/number_text.h"
#include "base/text_case.h"
#include "nest/nest_model.h"

namespace {

using Json = nlohmann::json;

/// Larger numbers are faults of the file; drawings of them would be blank.
constexpr double FarthestPlace = 100000;
constexpr double MostTurn = 3600;
constexpr double LeastSide = 1;
constexpr double MostSide = 10000;

std::string Cut(const std::string& text, std::size_t most) {
  return text.substr(0, most) + (text.size() > most ? "..." : "");
}

std::string Shown(const Json& value) {
  if (value.is_structured()) {
    return value.is_array() ? "a list" : "an object";
  }
  return Cut(value.dump(-1, ' ', true, Json::error_handler_t::replace), 40);
}

std::string Found(const Json& value) {
  return ", found " + Shown(value);
}

[[noreturn]] void Expected(const std::string& place, const std::string& what) {
  throw std::invalid_argument((place.empty() ? "" : place + ": ") + "expected " + what);
}

std::string Within(const std::string& place, const std::string& key) {
  return place.empty() ? key : place + "." + key;
}

/// A key that nobody reads is most likely a slip of the pen.
void RequireObject(const Json& value, const std::string& place, std::initializer_list<const char*> keys) {
  if (!value.is_object()) {
    Expected(place, "an object" + Found(value));
  }
  for (const auto& [key, ignored] : value.items()) {
    if (std::find(keys.begin(), keys.end(), key) == keys.end()) {
      std::string known;
      for (const char* name : keys) {
        known += (known.empty() ? "" : ", ") + std::string(name);
      }
      Expected(place, "only " + known + Found(key));
    }
  }
}

const Json& Required(const Json& object, const std::string& place, const char* key, const char* what) {
  if (!object.contains(key)) {
    Expected(Within(place, key), std::string(what) + ", found nothing");
  }
  return object[key];
}

double NumberBetween(const Json& value, const std::string& place, double least, double most) {
  const double number = value.is_number() ? value.get<double>() : NAN;
  if (!(number >= least && number <= most)) {
    Expected(place, "a number from " + PlainText(least) + " to " + PlainText(most) + Found(value));
  }
  return number;
}

std::string ReadName(const Json& part, const std::string& place) {
  const Json& name = Required(part, place, "name", "the name of a part");
  if (!name.is_string() || name.get_ref<const std::string&>().empty()) {
    Expected(Within(place, "name"), "the name of a part" + Found(name));
  }
  return name.get<std::string>();
}

NestPlacing ReadPlacing(const Json& object, const std::string& place) {
  NestPlacing placing;
  const auto coordinate = [&](const char* key) {
    return NumberBetween(Required(object, place, key, "a number of inches"), Within(place, key),
                         -FarthestPlace, FarthestPlace);
  };
  placing.x = coordinate("x");
  placing.y = coordinate("y");
  if (object.contains("turn")) {
    placing.turn = NumberBetween(object["turn"], Within(place, "turn"), -MostTurn, MostTurn);
  }
  if (object.contains("flip")) {
    if (!object["flip"].is_boolean()) {
      Expected(Within(place, "flip"), "true or false" + Found(object["flip"]));
    }
    placing.flip = object["flip"].get<bool>();
  }
  return placing;
}

NestPartLayout ReadPartLayout(const Json& part, const std::string& place) {
  RequireObject(part, place, {"name", "x", "y", "turn", "flip", "copy"});
  NestPartLayout layout;
  layout.name = ReadName(part, place);
  layout.part = ReadPlacing(part, place);
  if (part.contains("copy")) {
    RequireObject(part["copy"], Within(place, "copy"), {"x", "y", "turn", "flip"});
    layout.copy = ReadPlacing(part["copy"], Within(place, "copy"));
  }
  return layout;
}

void ReadSheet(const Json& sheet, NestLayout& layout) {
  RequireObject(sheet, "sheet", {"height", "length", "count"});
  if (sheet.contains("height")) {
    layout.height = NumberBetween(sheet["height"], "sheet.height", LeastSide, MostSide);
  }
  if (sheet.contains("length")) {
    layout.length = NumberBetween(sheet["length"], "sheet.length", LeastSide, MostSide);
  }
  if (sheet.contains("count")) {
    const Json& count = sheet["count"];
    if (count != 3 && count != 4 && count != 5) {
      Expected("sheet.count", "3, 4 or 5" + Found(count));
    }
    layout.sheets = count.get<int>();
  }
}

void ReadParts(const Json& parts, NestLayout& layout) {
  if (!parts.is_array()) {
    Expected("parts", "a list" + Found(parts));
  }
  if (parts.size() > MostNestParts) {
    Expected("parts", "at most " + std::to_string(MostNestParts) + ", found " + std::to_string(parts.size()));
  }
  for (const Json& part : parts) {
    const std::string place = "parts[" + std::to_string(layout.parts.size()) + "]";
    NestPartLayout read = ReadPartLayout(part, place);
    for (const NestPartLayout& earlier : layout.parts) {
      if (IsSameName(earlier.name, read.name)) {
        Expected(Within(place, "name"), "each part once" + Found(read.name));
      }
    }
    layout.parts.push_back(std::move(read));
  }
}

/// Refuses, while a text is still being read, what its values could not tell any more: levels so deep that
/// nobody meant them, and a key that stands twice in its object.
class StructureCheck {
 public:
  bool operator()(int depth, Json::parse_event_t event, const Json& value) {
    constexpr int most_levels = 16;
    const bool opens_object = event == Json::parse_event_t::object_start;
    if ((opens_object || event == Json::parse_event_t::array_start) && depth >= most_levels) {
      Expected("", "at most " + std::to_string(most_levels) + " levels, found more");
    }
    if (opens_object) {
      keys_.emplace_back();
    } else if (event == Json::parse_event_t::object_end) {
      keys_.pop_back();
    } else if (event == Json::parse_event_t::key && !keys_.back().insert(value).second) {
      Expected("", "each key of an object once" + Found(value));
    }
    return true;
  }

 private:
  std::vector<std::set<Json>> keys_;  ///< of the objects that are open, the outermost first
};

/// The library's own message without its number in front, short and in plain letters: it may quote any
/// bytes of the text.
std::string MessageOf(const Json::exception& error) {
  std::string message = error.what();
  const std::size_t end_of_number = message.find("] ");
  message.erase(0, end_of_number == std::string::npos ? 0 : end_of_number + 2);
  std::replace_if(
      message.begin(), message.end(), [](char c) { return c < ' ' || c > '~'; }, '?');
  return Cut(message, 200);
}

Json Parse(std::string_view text) {
  try {
    return Json::parse(text, StructureCheck());
  } catch (const Json::exception& error) {
    Expected("", "JSON, found a " + MessageOf(error));
  }
}

}  // namespace

NestLayout ReadNestLayout(std::string_view text) {
  const Json json = Parse(text);
  RequireObject(json, "", {"sheet", "parts"});
  NestLayout layout;
  if (json.contains("sheet")) {
    ReadSheet(json["sheet"], layout);
  }
  ReadParts(Required(json, "", "parts", "a list of parts"), layout);
  return layout;
}

bool IsSameName(std::string_view a, std::string_view b) {
  return LowerCase(a) == LowerCase(b);
}

std::string Quoted(std::string_view text) {
  return Shown(Json(text));
}
