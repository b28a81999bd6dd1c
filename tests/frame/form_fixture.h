#pragma once

#include <functional>
#include <string>

#include "frame/dialog/dialog.h"
#include "support/frame_fixture.h"

namespace orlin::testing {

/// A form without controls yet, and an operator who uses it.
class FormTest : public FrameTest {
 protected:
  void Note(const std::string& what) { Host->Happened.push_back(what); }
  /// What happens while code or the operator does something in the shown form.
  Log During(const std::function<void()>& action) {
    Log log;
    Host->Operate = [&](shown::Dialog&) {
      Host->Happened.clear();
      action();
      log = Host->Happened;
    };
    Form.ShowModal();
    return log;
  }
  std::optional<std::string> Press(int code) { return Form.PressKey(Key::Named(code)); }
  std::optional<std::string> Type(char32_t character) { return Form.PressKey(Key::Typing(character)); }

  Dialog Form{"frmTest", "", {}};
};

}  // namespace orlin::testing
