// Every control of the main window, by its object name, at its place.
#pragma once

#include <array>

#include "platform/controls.h"

/// The main window's controls, without their events.
struct MainControls {
  MainControls();
  ~MainControls();
  MainControls(const MainControls&) = delete;
  MainControls& operator=(const MainControls&) = delete;

  Window frmMain;

  PictureArea viewport;
  ScrollBar VScroll1;
  Label Label4;
  FileList File1;
  Frame Frame1;

  // The property panel, inside Frame1.
  Label Label1, Label2, Label3, Label5, Label6, Label7, Label8, Label9, Label10, Label11, Label12,
      Label13, Label14, Label15;
  TextBox txt_height, txt_width, txt_depth, txt_X, txt_Y, txt_Z, txt_speed, txt_distance;
  UpDown UpDown1, UpDown2, UpDown3, UpDownX, UpDownY, UpDownZ, UpDown_speed, UpDown_distance;
  DropDown Combo1, Combo2, cmbo_Direction;
  Button cmd_pause, cmd_ramp;
  CheckBox Check_Loop;

  MenuItem mnu_File, mnu_New, mnu_load, mnu_save, mnu_saveAS, mnu_Quit;
  MenuItem mnu_edit, mnu_copy, mnu_cut, mnu_Paste, mnu_undo, mnu_redo, mnu_duplicate;
  MenuItem mnu_mode, mnu_playmode, mnu_editmode;
  MenuItem mnu_insert, mnu_block, mnu_MovingPlatform, mnu_instantkill, mnu_fallingBlock, mnu_ice,
      mnu_Ramp, mnu_Endlevel, mnu_BouncePad, mnu_turbo, mnu_building, mnu_Star;
  MenuItem mnu_background, mnu_background1, mnu_background2, mnu_background3, mnu_background4,
      mnu_background5, mnu_background6;
  MenuItem mnu_Gravity, mnu_normal, mnu_low;
  MenuItem mnu_drive, mnu_showdrive, mnu_drivefromhere, mnu_finddrive, mnu_watchdrive,
      mnu_savedrive, mnu_bestwin, mnu_checktrack;
  MenuItem mnu_help, mnu_about, mnu_Shortcut;

  /// The six backdrop items in order.
  std::array<MenuItem*, 6> BackgroundItems();

 private:
  void BuildMenus();
  void BuildLayout();
  void BuildPanelTexts();
  void BuildPanelInputs();
};

/// The controls of the running editor: those made last.
MainControls& Controls();

inline constexpr const char* kPauseCaption = "Pause Platforms";
inline constexpr const char* kUnPauseCaption = "UnPause Platforms";
