// Starts the toolkit at a scale at which the program's window fits the screen.
#pragma once

#include <QApplication>
#include <QSize>
#include <memory>

namespace qt {

/// `client` is the client area that must fit, in pixels at 96 dots per inch; empty: any scale will
/// do. A scale below 100 % is never chosen. Without a display this prints one line and ends the
/// process with status 1.
std::unique_ptr<QApplication> StartToolkit(int& argc, char** argv, QSize client);

}  // namespace qt
