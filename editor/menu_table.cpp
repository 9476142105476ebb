#include "editor/main_controls.h"

namespace {

struct MenuRow {
  MenuItem MainControls::*item;
  const char* name;
  const char* caption;
  const char* shortcut;
  MenuItem MainControls::*menu;  ///< null: a top-level menu
  bool checkable = false;
};

using M = MainControls;

const MenuRow kMenus[] = {
    {&M::mnu_File, "mnu_File", "File", "", nullptr},
    {&M::mnu_New, "mnu_New", "New", "F2", &M::mnu_File},
    {&M::mnu_load, "mnu_load", "Open Track", "Ctrl+O", &M::mnu_File},
    {&M::mnu_save, "mnu_save", "Save Track", "Ctrl+S", &M::mnu_File},
    {&M::mnu_saveAS, "mnu_saveAS", "Save Track As", "", &M::mnu_File},
    {&M::mnu_Quit, "mnu_Quit", "Quit", "Ctrl+Q", &M::mnu_File},

    {&M::mnu_edit, "mnu_edit", "Edit", "", nullptr},
    {&M::mnu_copy, "mnu_copy", "Copy", "Ctrl+C", &M::mnu_edit},
    {&M::mnu_cut, "mnu_cut", "Cut", "Ctrl+X", &M::mnu_edit},
    {&M::mnu_Paste, "mnu_Paste", "Paste", "Ctrl+V", &M::mnu_edit},
    {&M::mnu_undo, "mnu_undo", "Undo", "Ctrl+Z", &M::mnu_edit},
    {&M::mnu_redo, "mnu_redo", "Redo", "Ctrl+Y", &M::mnu_edit},
    {&M::mnu_duplicate, "mnu_duplicate", "Duplicate", "Ctrl+D", &M::mnu_edit},

    {&M::mnu_mode, "mnu_mode", "Mode", "", nullptr},
    {&M::mnu_playmode, "mnu_playmode", "Play Mode!", "F3", &M::mnu_mode, true},
    {&M::mnu_editmode, "mnu_editmode", "Edit Mode", "F4", &M::mnu_mode, true},

    {&M::mnu_insert, "mnu_insert", "Insert", "", nullptr},
    {&M::mnu_block, "mnu_block", "(Spacebar) New Block", "", &M::mnu_insert},
    {&M::mnu_MovingPlatform, "mnu_MovingPlatform", "Moving Platform", "Ctrl+M", &M::mnu_insert},
    {&M::mnu_instantkill, "mnu_instantkill", "Instant Kill Block", "Ctrl+K", &M::mnu_insert},
    {&M::mnu_fallingBlock, "mnu_fallingBlock", "Falling Block", "Ctrl+F", &M::mnu_insert},
    {&M::mnu_ice, "mnu_ice", "Ice Block", "Ctrl+I", &M::mnu_insert},
    {&M::mnu_Ramp, "mnu_Ramp", "Ramp", "Ctrl+R", &M::mnu_insert},
    {&M::mnu_Endlevel, "mnu_Endlevel", "Win Level", "Ctrl+W", &M::mnu_insert},
    {&M::mnu_BouncePad, "mnu_BouncePad", "Jump Pad", "Ctrl+J", &M::mnu_insert},
    {&M::mnu_turbo, "mnu_turbo", "Turbo Pad", "Ctrl+T", &M::mnu_insert},
    {&M::mnu_building, "mnu_building", "Building", "Ctrl+B", &M::mnu_insert},
    {&M::mnu_Star, "mnu_Star", "Star", "F5", &M::mnu_insert},

    {&M::mnu_background, "mnu_background", "Background", "", nullptr},
    {&M::mnu_background1, "mnu_background1", "Background 1", "", &M::mnu_background, true},
    {&M::mnu_background2, "mnu_background2", "Background 2", "", &M::mnu_background, true},
    {&M::mnu_background3, "mnu_background3", "Background 3", "", &M::mnu_background, true},
    {&M::mnu_background4, "mnu_background4", "Background 4", "", &M::mnu_background, true},
    {&M::mnu_background5, "mnu_background5", "Background 5", "", &M::mnu_background, true},
    {&M::mnu_background6, "mnu_background6", "Background 6", "", &M::mnu_background, true},

    {&M::mnu_Gravity, "mnu_Gravity", "Gravity", "", nullptr},
    {&M::mnu_normal, "mnu_normal", "Normal", "F11", &M::mnu_Gravity, true},
    {&M::mnu_low, "mnu_low", "Low", "F12", &M::mnu_Gravity, true},

    {&M::mnu_drive, "mnu_drive", "Drive", "", nullptr},
    {&M::mnu_showdrive, "mnu_showdrive", "Show Drive", "F6", &M::mnu_drive, true},
    {&M::mnu_drivefromhere, "mnu_drivefromhere", "Drive From Here", "F7", &M::mnu_drive},
    {&M::mnu_finddrive, "mnu_finddrive", "Find A Winning Drive", "F8", &M::mnu_drive, true},
    {&M::mnu_watchdrive, "mnu_watchdrive", "Watch Drive", "F9", &M::mnu_drive},
    {&M::mnu_savedrive, "mnu_savedrive", "Save Drive", "", &M::mnu_drive},
    {&M::mnu_bestwin, "mnu_bestwin", "Best Win", "", &M::mnu_drive, true},
    {&M::mnu_checktrack, "mnu_checktrack", "Check Track", "", &M::mnu_drive},

    {&M::mnu_help, "mnu_help", "Help", "", nullptr},
    {&M::mnu_about, "mnu_about", "About", "Ctrl+A", &M::mnu_help},
    {&M::mnu_Shortcut, "mnu_Shortcut", "How to Use", "F1", &M::mnu_help},
};

}  // namespace

void MainControls::BuildMenus() {
  for (const MenuRow& row : kMenus) {
    MenuItem& item = this->*row.item;
    item.name = row.name;
    item.Caption(row.caption);
    item.shortcut = row.shortcut;
    item.checkable = row.checkable;
    if (row.menu != nullptr) {
      (this->*row.menu).items.push_back(&item);
    } else {
      frmMain.menus.push_back(&item);
    }
  }
  mnu_redo.otherShortcut = "Ctrl+Shift+Z";
  mnu_editmode.Checked(true);
}
