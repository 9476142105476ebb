// The editor: chooses the backends, builds the windows, runs them.
#include <csignal>

#include "editor/frmMain.h"
#include "level/globals.h"
#include "platform/paths.h"
#include "platform/qt/application.h"
#include "platform/qt/end_signals.h"

int main(int argc, char** argv) {
  // A limit on the size of files must fail the write, not end the program.
  std::signal(SIGXFSZ, SIG_IGN);
  // The main window's client area.
  constexpr int kWidth = 800, kHeight = 574;
  qt::Application application(argc, argv, kWidth, kHeight);
  paths::InstallFolder(paths::ProgramFolder());
  dialogs::Use(&application.Dialogs());
  createPlatformRoot = [&application] { return application.CreateRoot(); };

  SystemClock clock;
  frmMain form({clock, application.Pump(), application.Desktop()});
  application.Build(form.controls.frmMain);
  application.Build(form.about.window);
  application.Build(form.checks.window);
  const qt::EndSignals endSignals([&form] { form.Terminate(); });
  const bool ran = form.Form_Load();
  dialogs::Use(nullptr);
  return ran ? 0 : 1;
}
