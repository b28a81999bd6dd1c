#include "frame/dialog/dialog.h"

#include <utility>

#include "OrlinCustomDialogs/host/texts.h"

#include "frame/services/modGeneral.h"
#include "frame/services/services.h"
#include "frame/values/skip_failure.h"

namespace orlin {

Dialog::Dialog(std::string_view name, const CaptionSource& title, const orlin::Life& life, SizeInTwips size)
    : name_(name),
      host_(CurrentHost()),
      caption_(title.Text),
      titleNumber_(title.Number),
      titleTranslation_(title.Translation),
      life_(life),
      width_(size.Width),
      height_(size.Height) {
  // A failure in it was reported there; the dialog opens all the same.
  if (life.InitialisesServices) static_cast<void>(InitApplicationVariables());
}

void Dialog::Touched() {
  if (loaded_) return;
  loaded_ = true;
  if (OnLoad) return SkipFailure([this] { OnLoad(); });
  SkipFailure([this] { LoadCaptions(); }, [this] { Centre(); });
}

void Dialog::LoadCaptions() {
  if (titleNumber_ != 0) SkipFailure([this] { SetCaption(GetLocalText(titleNumber_)); });
  for (auto* control : controls_) Own(*control).LoadTexts();
}

void Dialog::Centre() {
  const auto screen = host_.Screen();
  left_ = (screen.Width - width_) / 2;
  top_ = (screen.Height - height_) / 2;
  ++revision_;
}

void Dialog::SetCaption(std::string caption, std::string translated) {
  Touched();
  caption_ = std::move(caption);
  translatedCaption_ = std::move(translated);
  titleTranslation_ = 0;
  ++revision_;
}

std::string Dialog::TranslatedCaption() const {
  if (titleTranslation_ != 0) return CatalogueText(titleTranslation_, caption_);
  return translatedCaption_.empty() ? caption_ : translatedCaption_;
}

void Dialog::SetWidth(int width) {
  Touched();
  width_ = width;
  ++revision_;
}

void Dialog::SetHeight(int height) {
  Touched();
  height_ = height;
  ++revision_;
}

const orlin::SecurityLevels& Dialog::SecurityLevels() const {
  if (levels_ == nullptr) throw Failure(failures::NoObject);
  return *levels_;
}

void Dialog::ShowModal() {
  Touched();
  shown_ = true;
  host_.ShowModal(*this);
  shown_ = false;
}

void Dialog::HideWith(orlin::ExitCode code) {
  exitCode_ = code;
  Hide();
}

void Dialog::Unload() noexcept { loaded_ = false; }

int Dialog::ShowMessage(std::string text, int flags) {
  return host_.ShowMessage({std::move(text), flags, std::nullopt});
}

int Dialog::ShowMessage(std::string text, int flags, std::string title) {
  return host_.ShowMessage({std::move(text), flags, std::move(title)});
}

OKButton::OKButton(Dialog& form, const CaptionSource& caption, std::string_view name) : Button(form, name, caption) {
  form.MakeDefault(*this);
  Click = [&form] { form.HideWith(ExitCode::OK); };
}

CancelButton::CancelButton(Dialog& form, const CaptionSource& caption, std::string_view name)
    : Button(form, name, caption) {
  form.MakeCancel(*this);
  Click = [&form] { form.HideWith(ExitCode::Cancel); };
}

}  // namespace orlin
