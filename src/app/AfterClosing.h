#pragma once

class QAction;
class QDialog;

namespace talvesk {

/// A command for a button of a modal dialog: it closes the dialog and gives the command then, which
/// asks questions of its own and shows its progress in the window.
/// \return owned by the dialog, with text, picture and state that the command has now
QAction* afterClosing(QDialog& dialog, QAction& command);

}  // namespace talvesk
