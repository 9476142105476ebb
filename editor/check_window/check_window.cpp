#include "editor/check_window/check_window.h"

#include <algorithm>

#include "check/check.h"
#include "editor/hand/drag.h"
#include "editor/history/history.h"
#include "editor/selection.h"
#include "editor/sight.h"
#include "level/globals.h"

namespace {

std::string Found(size_t count) {
  if (count == 0) return "Nothing found.";
  return std::to_string(count) + (count == 1 ? " finding" : " findings");
}

}  // namespace

CheckWindow::CheckWindow(Clock& clock) : clock_(clock) {
  window.name = "frmCheck";
  window.Caption("Check Track");
  window.clientWidth = 400;
  window.clientHeight = 304;
  const auto add = [this](Control& control, const char* name, const Place& place) {
    control.name = name;
    control.place = place;
    window.controls.push_back(&control);
  };
  add(lblFound, "lblFound", {16, 12, 368, 20});
  add(lstFindings, "lstFindings", {16, 36, 368, 216});
  add(cmdClose, "cmdClose", {304, 264, 80, 26});
  lblFound.bold = true;
  lstFindings.accessibleName = "Findings";
  lstFindings.onClick = [this] { GoTo(); };
  window.defaultButton = &cmdClose;
  cmdClose.Caption("Close");
  cmdClose.onClick = [this] { Close(); };
  window.onUnload = [this] { Close(); };
}

CheckWindow::Version CheckWindow::Present() {
  return {history::steps.State(), Document.TrackNumber};
}

void CheckWindow::Show() {
  if (Document.EditorMode != EditMode) return;
  open_ = true;
  Check();
  window.Show();
}

void CheckWindow::Close() {
  open_ = false;
  window.Unload();
}

void CheckWindow::Update() {
  const bool editing = Document.EditorMode == EditMode;
  if (lstFindings.Enabled() != editing) lstFindings.Enabled(editing);
  if (!open_ || !editing || checked_ == Present() || clock_.Counter() < nextCheck_) return;
  Check();
}

void CheckWindow::Check() {
  // What a large track costs must not be felt while a piece is dragged over it.
  constexpr int64_t kChecksPerSecond = 4, kPauseForEffort = 10;
  const int64_t begin = clock_.Counter();
  checked_ = Present();
  findings_ = check::FindFaultsOfDocument();
  ShowFindings();
  const int64_t end = clock_.Counter();
  nextCheck_ =
      end + std::max(clock_.Frequency() / kChecksPerSecond, (end - begin) * kPauseForEffort);
}

void CheckWindow::ShowFindings() {
  lblFound.Caption(Found(findings_.size()));
  std::vector<std::string> lines;
  lines.reserve(findings_.size());
  for (const check::Finding& finding : findings_) lines.push_back(finding.text);
  if (lines == lstFindings.Items()) return;
  // The chosen one stays chosen where it is still found.
  const int chosen = lstFindings.ListIndex();
  const auto kept =
      chosen < 0 ? lines.end()
                 : std::ranges::find(lines, lstFindings.Items().at(static_cast<size_t>(chosen)));
  const int row = kept == lines.end() ? -1 : static_cast<int>(kept - lines.begin());
  lstFindings.Items(std::move(lines));
  if (row >= 0) lstFindings.ListIndex(row);
}

void CheckWindow::GoTo() {
  if (Document.EditorMode != EditMode) return;
  // What is clicked at may have got another number since.
  if (checked_ != Present()) Check();
  const int row = lstFindings.ListIndex();
  if (row < 0) return;
  const check::Finding& finding = findings_[static_cast<size_t>(row)];
  drag::Release();
  if (!finding.piece) return sight::Bring(finding.place);
  selection::Select(finding.piece->kind, finding.piece->index);
  sight::BringSelection();
}
