#include "tools/toolbox/ToolboxPictures.h"

#include <algorithm>
#include <stdexcept>

#include "values/Text.h"

namespace kel::toolbox {

namespace {

struct Picture {
    std::u16string_view className;
    Sketch sketch;
};

constexpr Picture Pictures[] = {
    {u"KelText",
     {"................", "................", "................", "kkkkkkkkkkkkkkkk", "kwwwwwwwwwwwwwwk",
      "kwwwwwwkwwwwwwwk", "kwkkwwwkwwwwwwwk", "kwwwkwwkkkwwwwbk", "kwkkkwwkwwkwwwbk", "kwkwkwwkwwkwwwbk",
      "kwkkkwwkkkwwwwbk", "kwwwwwwwwwwwwwwk", "kkkkkkkkkkkkkkkk", "................", "................"}},
    {u"KelNumber",
     {"................", "................", "................", "kkkkkkkkkkkkkkkk", "kwwwwwwwwwkggggk",
      "kwwkwwkkkwkggkgk", "kwkkwwwwkwkgkkkk", "kwwkwwkkkwkggggk", "kwwkwwkwwwkkkkkk", "kwkkkwkkkwkkkkgk",
      "kwwwwwwwwwkgkggk", "kwwwwwwwwwkggggk", "kkkkkkkkkkkkkkkk", "................", "................"}},
    {u"KelDate",
     {"................", "................", "kkkkkkkkkkkkkkkk", "kbbbbbbbbbbbbbbk", "kbbbbbbbbbbbbbbk",
      "kkkkkkkkkkkkkkkk", "kwwkwwkwwkwwkwwk", "kwwkwwkwwkwwkwwk", "kkkkkkkkkkkkkkkk", "kwwkrrkwwkwwkwwk",
      "kwwkrrkwwkwwkwwk", "kkkkkkkkkkkkkkkk", "kwwkwwkwwkwwkwwk", "kkkkkkkkkkkkkkkk", "................"}},
    {u"KelTime",
     {".....kkkkkk.....", "...kkwwwwwwkk...", "..kwwwwkkwwwwk..", "..kwwwwwkwwwwk..", ".kwwwwwwkwwwwwk.",
      ".kwwwwwwkwwwwwk.", ".kwwwwwwkwwwwwk.", ".kwwwwwwkkkkwwk.", ".kwwwwwwwwwwwwk.", ".kwwwwwwwwwwwwk.",
      "..kwwwwwwwwwwk..", "..kwwwwwwwwwwk..", "...kkwwwwwwkk...", ".....kkkkkk.....", "................"}},
    {u"KelCombo",
     {"................", "kkkkkkkkkkkkkkkk", "kwwwwwwwwwwkgggk", "kwkkwkkwkwwkkkkk", "kwwwwwwwwwwkgkgk",
      "kkkkkkkkkkkkkkkk", "kwwwwwwwwwwwwwwk", "kwkkkwkkwwwwwwwk", "kwwwwwwwwwwwwwwk", "kbbbbbbbbbbbbbbk",
      "kbwwwbwwbbbbbbbk", "kbbbbbbbbbbbbbbk", "kwkkwkkkkwwwwwwk", "kkkkkkkkkkkkkkkk", "................"}},
    {u"KelCheck",
     {"................", "................", "kkkkkkkkkkk.....", "kwwwwwwwwwk.....", "kwwwwwwwwkk.....",
      "kwwwwwwwkkk.....", "kwkwwwwkkwk.kkk.", "kwkkwwkkwwk...k.", "kwwkkkkwwwk.kkk.", "kwwwkkwwwwk.k.k.",
      "kwwwwwwwwwk.kkk.", "kwwwwwwwwwk.....", "kkkkkkkkkkk.....", "................", "................"}},
    {u"KelProgressBar",
     {"................", "................", "................", "................", "kkkkkkkkkkkkkkkk",
      "kwwwwwwwwwwwwwwk", "kwbbbwbbbwwwwwwk", "kwbbbwbbbwwwwwwk", "kwbbbwbbbwwwwwwk", "kwbbbwbbbwwwwwwk",
      "kwwwwwwwwwwwwwwk", "kkkkkkkkkkkkkkkk", "................", "................", "................"}},
};

const Picture& pictureOf(const ClassModel& model) {
    for (const Picture& picture : Pictures)
        if (picture.className == model.name) return picture;
    throw std::runtime_error("no toolbox picture for class " + toUtf8(model.name));
}

}  // namespace

const Sketch& sketchOf(const ClassModel& model) { return pictureOf(model).sketch; }

std::vector<const ClassModel*> inToolboxOrder(std::vector<const ClassModel*> controls) {
    std::sort(controls.begin(), controls.end(),
              [](const ClassModel* left, const ClassModel* right) { return &pictureOf(*left) < &pictureOf(*right); });
    return controls;
}

}  // namespace kel::toolbox
