#include "board/step_runner.h"

#include "board/views.h"

namespace tolmar::board {

namespace {

bool isHullScreen(ScreenId s) {
  return s == ScreenId::bouchain1 || s == ScreenId::bouchain2 || s == ScreenId::bouchain3;
}

}  // namespace

void StepRunner::perform(const Actions& actions) {
  ++depth_;
  for (std::size_t i = 0; i < actions.size(); ++i) {
    const Action& a = actions[i];
    if (a.what == Do::ShowModal && isHullScreen(a.screen)) {
      afterModal_[a.screen] =
          Actions(actions.begin() + static_cast<std::ptrdiff_t>(i) + 1, actions.end());
      host_.showModal(a.screen);
      break;
    }
    run(a);
  }
  --depth_;
  if (depth_ > 0) return;
  while (!due_.empty()) {
    const Actions next = std::move(due_.front());
    due_.erase(due_.begin());
    perform(next);
  }
  host_.stepsDone();
}

void StepRunner::redraw(const std::function<void()>& draw) {
  host_.busy(true);
  BoardState& b = host_.board();
  drawingStarted(b);
  if (draw) {
    draw();
  } else {
    dessine(host_.picture(), h_, b.stepIndex);
  }
  drawingEnded(b);
  host_.pictureChanged();
  perform({afterRedraw(b, h_)});
  host_.busy(false);
}

void StepRunner::run(const Action& a) {
  switch (a.what) {
    case Do::Load:
      host_.load(a.screen);
      break;
    case Do::Show:
      host_.show(a.screen);
      break;
    case Do::ShowModal:
      host_.showModal(a.screen);
      break;
    case Do::Hide: {
      host_.hide(a.screen);
      const auto waiting = afterModal_.find(a.screen);
      if (waiting != afterModal_.end()) {
        due_.push_back(std::move(waiting->second));
        afterModal_.erase(waiting);
      }
      break;
    }
    case Do::Unload:
      host_.unload(a.screen);
      break;
    case Do::Focus:
      if (a.control != BoardControl::dessine) {
        host_.focus(a.control);
      } else if (host_.board().isEnabled(BoardControl::dessine)) {
        // A disabled button cannot take the focus, so it does not redraw.
        redraw();
      }
      break;
    case Do::AfterModal:
      afterModal(host_.board(), a.control);
      break;
    case Do::ClearPicture:
      host_.picture().Cls();
      host_.pictureChanged();
      break;
    case Do::Refresh:
      host_.refresh(a.screen);
      break;
    case Do::Beep:
      host_.bell();
      break;
    case Do::SaveHullFile:
      host_.command(BoardControl::fmenu_S_Data);
      break;
    case Do::OpenHullFile:
      host_.command(BoardControl::fmenu_Open);
      break;
    case Do::Run:
      if (a.control == BoardControl::dessine) {
        redraw();
      } else {
        host_.command(a.control);
      }
      break;
    case Do::EndProgram:
      host_.endProgram();
      break;
  }
}

}  // namespace tolmar::board
