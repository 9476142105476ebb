#include "editor/frmMain.h"

#include <algorithm>

#include "editor/history/history.h"
#include "files/FileIO.h"
#include "level/backdrop.h"
#include "level/globals.h"
#include "platform/dialogs.h"
#include "platform/paths.h"
#include "play/DirectInput.h"
#include "play/clsPlayer.h"
#include "play/play_frame.h"
#include "render/device/DirectX.h"
#include "render/device/clsParticles.h"
#include "render/frame/clsShadow.h"
#include "render/frame/frame_steps.h"

namespace {

constexpr double kFrameMilliseconds = 40.0;

double Milliseconds(int64_t counts, int64_t frequency) {
  return static_cast<double>(counts) / static_cast<double>(frequency) * 1000.0;
}

}  // namespace

frmMain::frmMain(const Services& services)
    : checks(services.clock),
      services_(services),
      copies_(services.clock, [this](std::string& bytes) { return EditedTrack(bytes); }) {
  about.window.owner = checks.window.owner = &controls.frmMain;
  // Beside the picture: what is clicked at shows there.
  checks.window.insideOwner = controls.VScroll1.place.left + controls.VScroll1.place.width;
  ticks::Use(&services_.clock);
  ConnectEvents();
  FileIO::TrackReplaced = [this] { TrackReplaced(); };
}

frmMain::~frmMain() {
  history::steps.changed = nullptr;
  FileIO::TrackReplaced = nullptr;
  ticks::Use(nullptr);
}

bool frmMain::Form_Load() {
  if (!Start()) return false;
  while (Running_) Pass();
  ReleaseDevices();
  return true;
}

bool frmMain::Start() {
  StartDocument();
  controls.File1.Folder(paths::InInstallFolder("\\textures\\"));
  Running_ = DirectX::InitDirect3D(controls.viewport) && DirectInput::InitKeyboard();
  if (!Running_) {
    EndAfterFailedStart();
    return false;
  }
  // Each is reported; a car without its picture must not keep anybody from building.
  dialogs::Enter([] { Player.load(paths::InInstallFolder("\\models\\player.x")); });
  dialogs::Enter([] { Particles.create(); });
  dialogs::Enter([] { Shadow.create(); });
  Document.BackgroundName = kDefaultBackdrop;
  ShowBackdrop(kDefaultBackdrop);
  controls.VScroll1.Value(controls.VScroll1.Maximum());
  CounterFrequency_ = services_.clock.Frequency();
  controls.File1.ListIndex(0);
  Document.ObjectSelected = false;
  controls.frmMain.Show();
  controls.Check_Loop.Enabled(false);
  Document.PlatformsPaused = false;
  dialogs::Enter([this] { NewTrack(); });
  history::steps.Reset();
  LastFrameCount_ = services_.clock.Counter();
  return true;
}

void frmMain::StartDocument() {
  Document = LevelDocument();
  Document.EditorMode = EditMode;
  Document.TrackLoaded = false;
  Document.TextureDir = paths::InInstallFolder("\\textures\\");
  Document.BackgroundDir = paths::InInstallFolder("\\backgrounds\\");
}

void frmMain::Pass() {
  const double elapsed = Milliseconds(NowCount_ - LastFrameCount_, CounterFrequency_);
  if (elapsed > kFrameMilliseconds) {
    Frame();
    return;
  }
  NowCount_ = services_.clock.Counter();
  // Sleeping in the pump until the mark keeps an idle editor from burning a core.
  const double sinceFrame = Milliseconds(NowCount_ - LastFrameCount_, CounterFrequency_);
  services_.pump.Pump(std::max(0.0, kFrameMilliseconds - sinceFrame));
}

void frmMain::Frame() {
  LastFrameCount_ = services_.clock.Counter();
  try {
    drives.Update();
    checks.Update();
    RunFrame({[this] { ProcessKeyboard(); }, [this] { return RestartTrack(); },
              [this] { drives.seat.Updated(); }, drives.Additions()});
    if (Document.EditorMode == PlayMode) drives.seat.FrameEnds();
  } catch (const std::exception& failure) {
    drives.seat.Abandon();
    // A frame fails 25 times a second; the user is told once.
    if (lastFrameFailure_ != failure.what()) {
      lastFrameFailure_ = failure.what();
      dialogs::ShowMessage(lastFrameFailure_);
    }
  }
  copies_.Tick();
  services_.pump.Pump(0);
  NowCount_ = services_.clock.Counter();
}

void frmMain::MovePlatforms() { ::MovePlatforms(); }

void frmMain::ProcessKeyboard() {
  if (!DirectInput::PollKeyboard()) return;
  if (Document.EditorMode == EditMode) {
    MoveCameraByKeys();
  } else {
    drives.seat.Poll();
  }
  DirectX::ApplyCamera();
}

void frmMain::MoveCameraByKeys() {
  using DirectInput::Held;
  if (!Held(scancode::kLeftShift) && !Held(scancode::kRightShift)) return;
  ScrollBar& bar = controls.VScroll1;
  if (Held(scancode::kUp) && bar.Value() > bar.Minimum()) bar.Value(bar.Value() - 1);
  if (Held(scancode::kDown) && bar.Value() < bar.Maximum()) bar.Value(bar.Value() + 1);
}

void frmMain::EndAfterFailedStart() {
  DirectX::ReleaseDirectX();
  controls.frmMain.Unload();
}

void frmMain::Shutdown() {
  if (Running_) copies_.CopyNow();
  Running_ = false;
  // Keys and clicks may be waiting behind this one.
  dialogs::CloseDoor();
  about.window.Unload();
  checks.window.Unload();
  controls.frmMain.Unload();
}

void frmMain::Terminate() {
  if (Running_) copies_.CopyQuietly();
  Running_ = false;
  Shutdown();
}

void frmMain::ReleaseDevices() {
  DirectInput::KeyboardDevice.reset();
  DirectInput::DI.reset();
  DirectX::ReleaseDirectX();
}
