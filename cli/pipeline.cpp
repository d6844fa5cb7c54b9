#include "pipeline.h"

#include <algorithm>
#include <charconv>
#include <type_traits>

#include "board/step_host.h"
#include "board/step_runner.h"
#include "hull/hull_file.h"
#include "hull/hull_file_check.h"
#include "screens/bouchain1.h"
#include "screens/bouchain2.h"
#include "screens/bouchain3.h"
#include "screens/menu2.h"
#include "unseen_picture.h"

namespace tolmar::cli {

namespace {

using board::ScreenId;

bool knownScreen(std::string_view s) {
  return s == "bouchain1" || s == "bouchain2" || s == "bouchain3";
}

// A field or an option button of a screen, found by the name of a --set.
struct Target {
  Field* field = nullptr;
  bool option = false;
  std::string error;
};

template <int Lo, int Hi>
Target inArray(ControlArray<Lo, Hi>& a, const SetValue& s, bool option = false) {
  if (s.index < Lo || s.index > Hi)
    return {nullptr, false,
            s.control + " takes an index " + std::to_string(Lo) + ".." + std::to_string(Hi)};
  return {&a(s.index), option, {}};
}

Target single(Field& f, const SetValue& s) {
  if (s.index != -1) return {nullptr, false, s.control + " is not a control array"};
  return {&f, false, {}};
}

Target unknown(const SetValue& s) {
  return {nullptr, false, "no control " + s.control + " on " + s.screen};
}

Target find(Bouchain1& b, const SetValue& s) {
  if (s.control == "Text1") return inArray(b.Text1, s);
  if (s.control == "Text2") return inArray(b.Text2, s);
  return unknown(s);
}

Target find(Bouchain2& b, const SetValue& s) {
  if (s.control == "Text1") return inArray(b.Text1, s);
  if (s.control == "Text2") return inArray(b.Text2, s);
  if (s.control == "Text3") return inArray(b.Text3, s);
  if (s.control == "Text4") return inArray(b.Text4, s);
  if (s.control == "OptShear") return inArray(b.OptShear, s, true);
  if (s.control == "OptTableau") return inArray(b.OptTableau, s, true);
  if (s.control == "OptMarotte") return inArray(b.OptMarotte, s, true);
  return unknown(s);
}

Target find(Bouchain3& b, const SetValue& s) {
  if (s.control == "Text0") return single(b.Text0, s);
  if (s.control == "Text1") return inArray(b.Text1, s);
  if (s.control == "Text2") return inArray(b.Text2, s);
  if (s.control == "Text4") return single(b.Text4, s);
  return unknown(s);
}

// One run of the windows: the start screen, the board and the hull
// screens, their events' steps run by the runner the windows use.  A hull
// screen shown modal is passed at once (its --set values typed, Valider
// pressed); what only a window does is left undone.
class Session : private board::StepHost {
 public:
  Session(HullStore& h, const PipelineOptions& o) : h_(h), o_(o), runner_(*this, h) {}

  PipelineResult run();

 private:
  board::BoardState& board() override { return r_.board; }
  DrawingSurface& picture() override { return picture_; }
  void load(ScreenId s) override {
    if (s == ScreenId::dessin) r_.board = board::loadBoard(h_);
  }
  void showModal(ScreenId s) override { runScreen(s); }

  // False once a step has failed: the run stops there.
  bool perform(const board::Actions& actions) {
    runner_.perform(actions);
    return r_.status == 0;
  }
  bool runScreen(ScreenId s);
  template <typename Screen, typename Click>
  bool typeSets(Screen& screen, std::string_view name, Click click);
  template <typename Validate>
  bool validate(std::string_view name, Validate valider, const Replacements& replaced);
  bool fail(int status, std::string why) {
    r_.status = status;
    r_.error = std::move(why);
    return false;
  }

  HullStore& h_;
  const PipelineOptions& o_;
  PipelineResult r_;
  Bouchain1 b1_;
  Bouchain2 b2_;
  Bouchain3 b3_;
  UnseenPicture picture_;
  board::StepRunner runner_;
};

PipelineResult Session::run() {
  for (const SetValue& s : o_.sets) {
    if (!knownScreen(s.screen)) {
      fail(2, "--set " + s.arg + ": no hull screen " + s.screen);
      return r_;
    }
  }
  screens::Menu2 start;
  if (!perform(screens::loadMenu2(start, h_, kDisplayWidth, kDisplayHeight))) return r_;
  if (o_.hullFile) {
    // The default hull's own bottom screen, which the user would pass
    // before the board's Open, changes nothing that the file does not
    // replace, and is left out.
    board::boardOnCreate(r_.board, h_);
    FileResult read = openHullFile(*o_.hullFile, h_);
    if (read.ok) {
      // Opened, so a regular file: an empty one or a picture is no hull.
      if (std::string why = notAHullFile(*o_.hullFile); !why.empty()) read = {false, why};
    }
    if (!read.ok) {
      fail(1, "Tolmar2008 Opening file: " + o_.hullFile->string() + ": " + read.message);
      return r_;
    }
    board::openNamed(r_.board, h_);
    board::checkHull(r_.board, h_);
    if (!perform(board::openBeforeRebuild(r_.board)) || !perform(board::openAfterRebuild(r_.board)))
      return r_;
  } else if (!perform(screens::createClick(r_.board, h_))) {
    return r_;
  }

  const bool autoPlanking = o_.autoPlanking || h_.nChines > 6 ||
                            std::any_of(o_.sets.begin(), o_.sets.end(),
                                        [](const SetValue& s) { return s.screen == "bouchain3"; });
  const std::string_view skipped = autoPlanking ? "bouchain2" : "bouchain3";
  for (const SetValue& s : o_.sets) {
    if (s.screen == skipped) {
      fail(2, "--set " + s.arg + ": " + std::string(skipped) + " is not shown for this hull (" +
                  (autoPlanking ? "automatic planking" : "planks by hand") + ", " +
                  std::to_string(h_.nChines) + " lines)");
      return r_;
    }
  }
  const board::BoardControl next = board::command1(autoPlanking ? 2 : 1);
  const board::Actions pressed = board::press(r_.board, h_, next);
  if (pressed.empty()) {
    fail(2, std::string(board::controlName(next)) + " is disabled on the board");
    return r_;
  }
  perform(pressed);
  r_.langue = h_.langue;
  return r_;
}

bool Session::runScreen(ScreenId s) {
  switch (s) {
    case ScreenId::bouchain1:
      b1_.activate(h_);
      if (!typeSets(b1_, "bouchain1", [](const SetValue&) {})) return false;
      if (!validate(
              "bouchain1", [&] { return b1_.validerBottom(h_); }, b1_.replaced))
        return false;
      return perform(board::endOfBouchain1(r_.board, h_));
    case ScreenId::bouchain2:
      b2_.activate(h_);
      if (!typeSets(b2_, "bouchain2", [&](const SetValue& v) {
            if (v.control == "OptShear") b2_.clickOptShear(h_, v.index);
            if (v.control == "OptTableau") b2_.clickOptTableau(h_, v.index);
            if (v.control == "OptMarotte") b2_.clickOptMarotte(h_, v.index);
          }))
        return false;
      if (!validate(
              "bouchain2", [&] { return b2_.validerPlanks(h_); }, b2_.replaced))
        return false;
      return perform(board::endOfBouchain2(r_.board));
    case ScreenId::bouchain3:
      b3_.activate(h_);
      if (!typeSets(b3_, "bouchain3", [](const SetValue&) {})) return false;
      if (!validate(
              "bouchain3", [&] { return b3_.validerAuto(h_); }, b3_.replaced))
        return false;
      return perform(board::endOfBouchain3(r_.board, h_));
    default:
      return true;  // overlap1 and the analysis screens change nothing here
  }
}

template <typename Screen, typename Click>
bool Session::typeSets(Screen& screen, std::string_view name, Click click) {
  for (const SetValue& s : o_.sets) {
    if (s.screen != name) continue;
    const Target t = find(screen, s);
    if (!t.field) return fail(2, "--set " + s.arg + ": " + t.error);
    if (!t.field->enabled)
      return fail(2, "--set " + s.arg + ": the field is disabled on " + s.screen);
    if (t.option) {
      if (s.hasValue)
        return fail(2, "--set " + s.arg + ": an option button is clicked, it takes no value");
      click(s);
    } else {
      if (!s.hasValue) return fail(2, "--set " + s.arg + ": a text field needs =VALUE");
      t.field->text = s.value;
      if constexpr (std::is_same_v<Screen, Bouchain1>) screen.text1Changed();
    }
  }
  return true;
}

template <typename Validate>
bool Session::validate(std::string_view name, Validate valider, const Replacements& replaced) {
  for (int press = 1; press <= kMaxValidations; ++press) {
    const bool ok = valider();
    for (const Replacement& rep : replaced) {
      const bool seen =
          std::any_of(r_.warnings.begin(), r_.warnings.end(), [&](const Replacement& w) {
            return w.screen == rep.screen && w.control == rep.control && w.typed == rep.typed &&
                   w.kept == rep.kept;
          });
      if (!seen) r_.warnings.push_back(rep);
    }
    if (ok) return true;
  }
  // Values the screen refuses for what they make of the hull: say what.
  const auto refusal = std::find_if(replaced.begin(), replaced.end(),
                                    [](const Replacement& rep) { return !rep.why.empty(); });
  if (refusal != replaced.end()) {
    std::string why =
        std::string(name) + " refuses these values: " + refusal->why + ".  In orange:";
    for (const Replacement& rep : replaced) {
      if (rep.why == refusal->why) why += " " + rep.control + "=" + rep.kept;
    }
    return fail(2, why);
  }
  std::string why = std::string(name) + " does not pass after " + std::to_string(kMaxValidations) +
                    " validations; the last one still changed:";
  for (const Replacement& rep : replaced) why += "\n  " + describe(rep);
  if (replaced.empty()) why += " nothing it could name";
  return fail(2, why);
}

}  // namespace

SetValue parseSet(std::string_view arg, std::string& error) {
  error.clear();
  SetValue s;
  s.arg = std::string(arg);
  const std::size_t eq = arg.find('=');
  std::string_view target = arg.substr(0, eq);
  if (eq != std::string_view::npos) {
    s.hasValue = true;
    s.value = std::string(arg.substr(eq + 1));
  }
  const std::size_t dot = target.find('.');
  if (dot == std::string_view::npos || dot == 0) {
    error = "--set " + s.arg + ": expected SCREEN.CONTROL[=VALUE]";
    return s;
  }
  s.screen = std::string(target.substr(0, dot));
  std::string_view control = target.substr(dot + 1);
  const std::size_t open = control.find('(');
  if (open != std::string_view::npos) {
    const std::string_view inner = control.substr(open + 1);
    int index = 0;
    const auto [end, ec] = std::from_chars(inner.data(), inner.data() + inner.size(), index);
    if (ec != std::errc() || end == inner.data() ||
        std::string_view(end, inner.data() + inner.size()) != ")") {
      error = "--set " + s.arg + ": expected an index as CONTROL(i)";
      return s;
    }
    s.index = index;
    control = control.substr(0, open);
  }
  if (control.empty()) {
    error = "--set " + s.arg + ": expected SCREEN.CONTROL[=VALUE]";
    return s;
  }
  s.control = std::string(control);
  return s;
}

PipelineResult prepareHull(HullStore& h, const PipelineOptions& o) { return Session(h, o).run(); }

std::string describe(const Replacement& r) {
  return r.screen + " " + r.control + ": typed \"" + r.typed + "\", kept \"" + r.kept + "\"" +
         (r.marked ? "" : " (moved without a mark)");
}

}  // namespace tolmar::cli
