// The main window: start-up, the main loop, and the commands of its menus.
#pragma once

#include <cstdint>
#include <string>

#include "editor/check_window/check_window.h"
#include "editor/drives/drives.h"
#include "editor/frmAbout.h"
#include "editor/main_controls.h"
#include "editor/safety/safety_copies.h"
#include "editor/temporary_track.h"
#include "platform/clock.h"
#include "platform/shell.h"

class frmMain {
 public:
  /// What the window needs from the platform; all of it outlives the window.
  struct Services {
    Clock& clock;
    MessagePump& pump;
    Shell& shell;
  };

  explicit frmMain(const Services& services);
  ~frmMain();
  frmMain(const frmMain&) = delete;
  frmMain& operator=(const frmMain&) = delete;

  /// Start-up, then the main loop; returns when the loop ends. False when a device failed.
  bool Form_Load();
  /// Start-up alone; false, after the device's message, when a device failed.
  bool Start();
  /// One pass of the main loop: a frame when more than 40 ms have passed since the last one began,
  /// then one pump of window messages.
  void Pass();
  bool IsRunning() const { return Running_; }
  /// The system wants the program to end: nothing is asked, nothing is lost.
  void Terminate();

  /// Replaces the track by a new one of a single selected block.
  void NewTrack();
  void MovePlatforms();
  /// The per-frame poll of held keys.
  void ProcessKeyboard();
  /// A key-down message; afterwards the code is one that no control acts on.
  void Form_KeyDown(int16_t& KeyCode, int Shift);
  void Form_KeyUp(int16_t KeyCode);

  MainControls controls;
  frmAbout about;
  CheckWindow checks;
  drives::Drives drives{controls, [this] { mnu_playmode_Click(); }};

 private:
  // frmMain.cpp
  void StartDocument();
  void Frame();
  void MoveCameraByKeys();
  void EndAfterFailedStart();
  void Shutdown();
  void ReleaseDevices();

  // frmMain_events.cpp: wires controls to handlers
  void ConnectEvents();
  void ConnectFileAndModeItems();
  void ConnectEditItems();
  void ConnectInsertItems();
  void ConnectOtherItems();

  // frmMain_track.cpp: file, background, gravity, camera and help commands
  FileIO::Outcome mnu_load_Click();
  void ChooseBackdrop(size_t item);
  void ClearBackgroundChecks();
  void CheckBackdrop();
  void ChooseGravity(float gravity);
  void TakeStep(void (*take)());
  void CheckGravity(bool normal);
  void VScroll1_Change();
  void TrackReplaced();
  FileIO::Result EditedTrack(std::string& bytes) const;
  void NoteSaved(FileIO::Outcome outcome);
  void mnu_Shortcut_Click();

  // frmMain_modes.cpp
  void mnu_playmode_Click();
  void mnu_editmode_Click();
  void StartPlay();
  bool RestartTrack();
  void ReturnToEditing(const FileIO::Result& restored);
  void CheckMode(int32_t mode);
  void ClearSelection();
  void NextTrack();

  Services services_;
  TemporaryTrack temporaryTrack_;
  safety::SafetyCopies copies_;
  bool Running_ = false;
  bool KeyReleased_ = false;  ///< a key came up since the last command that runs once per press
  bool SpaceHeld_ = false;
  int64_t CounterFrequency_ = 1;
  int64_t LastFrameCount_ = 0;
  int64_t NowCount_ = 0;
  std::string lastFrameFailure_;
};
