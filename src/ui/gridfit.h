#pragma once

class QTableWidget;

namespace tarvane {

// Rows and head of a list of lines for text of this height, and its columns that follow their contents; called after
// each change of the window's size.
void FitGrid(QTableWidget& grid, double pixels);

}  // namespace tarvane
