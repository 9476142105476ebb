#include "editor/frmAbout.h"

#include "platform/dialogs.h"
#include "platform/paths.h"

namespace {

constexpr int kMajor = 1, kMinor = 0, kRevision = 0;

}  // namespace

frmAbout::frmAbout() {
  window.name = "frmAbout";
  window.clientWidth = 320;
  window.clientHeight = 120;
  const auto add = [this](Control& control, const char* name, const Place& place) {
    control.name = name;
    control.place = place;
    window.controls.push_back(&control);
  };
  add(picIcon, "picIcon", {16, 16, 48, 48});
  add(lblTitle, "lblTitle", {80, 16, 224, 20});
  add(lblVersion, "lblVersion", {80, 40, 224, 20});
  add(cmdOK, "cmdOK", {224, 80, 80, 26});
  lblTitle.bold = true;
  window.defaultButton = &cmdOK;
  cmdOK.Caption("OK");
  cmdOK.onClick = [this] { window.Unload(); };
  window.onUnload = [this] { window.Unload(); };
  Form_Load();
}

void frmAbout::Form_Load() {
  const std::string title = dialogs::kApplicationTitle;
  window.Caption("About " + title);
  lblTitle.Caption(title);
  lblVersion.Caption("Version " + std::to_string(kMajor) + "." + std::to_string(kMinor) + "." +
                     std::to_string(kRevision));
  picIcon.accessibleName = title;
  picIcon.picture = paths::InInstallFolder("\\misc\\icon.png");
}

void frmAbout::Show() { window.Show(); }
