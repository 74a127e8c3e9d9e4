#include "view/headless/HeadlessToolkit.h"

#include <tarnwise/Platform.h>

#include "runtime/Utf8.h"

namespace Tarnwise {

namespace {

constexpr Single kTwipsPerCharacter = 90.0F;

}  // namespace

void HeadlessToolkit::Show(Form& /*form*/, Showing /*how*/) {}
void HeadlessToolkit::Hide(Form& /*form*/) {}
void HeadlessToolkit::Release(Form& form) {
  if (Released) Released(form);
}
void HeadlessToolkit::ControlUnloaded(Control& /*control*/) {}
void HeadlessToolkit::Sync(Form& /*form*/) {}

void HeadlessToolkit::RunModal(Form& form) {
  while (form.Visible && !form.Released && Pump && Pump()) {
  }
}

void HeadlessToolkit::MessageBox(Form* /*over*/, const String& /*text*/, int /*style*/, const String& /*title*/) {}
void HeadlessToolkit::Beep() {}
void HeadlessToolkit::SetPointer(int /*pointer*/) {}
void HeadlessToolkit::Help(Form& /*form*/, const String& /*path*/, int /*command*/, int /*context*/) {}
WindowHandle HeadlessToolkit::WindowOf(const Form& /*form*/) { return 0; }
void HeadlessToolkit::Focus(Control& /*control*/) {}
void HeadlessToolkit::AnnounceChange(Label& /*label*/) {}

Single HeadlessToolkit::TextWidth(const String& text) { return kTwipsPerCharacter * static_cast<Single>(Length(text)); }
Single HeadlessToolkit::ScreenWidth() { return 28800.0F; }
Single HeadlessToolkit::ScreenHeight() { return 16200.0F; }

std::shared_ptr<Platform> MakeHeadlessPlatform() {
  return std::make_shared<Platform>(std::make_shared<HeadlessToolkit>());
}

}  // namespace Tarnwise
