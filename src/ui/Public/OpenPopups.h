#pragma once

class QWidget;

namespace video {

/// Closes every menu, list and other popup that is open, so that none stays behind over another tab. GUI
/// thread.
void CloseOpenPopups();

/// Closes the popups, then rejects every modal dialog, the topmost first. One that refuses to close keeps
/// those beneath it open too.
void CloseModalDialogs();

/// The same with the dialogs of one page, down to the first that belongs to another.
void CloseModalDialogsOf(const QWidget& page);

} // namespace video
