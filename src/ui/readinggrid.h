#pragma once

#include <QString>
#include <vector>

class QTableWidget;
class QWidget;

namespace tarvane {

// What a grid to read shows: heads (none if all are empty) and rows of as many cells.
struct GridText {
    std::vector<QString> heads;
    std::vector<std::vector<QString>> rows;
    std::vector<bool> left;  // columns of words; the others are of figures
    bool totals = false;     // the last row sums the others
    bool matrix = false;     // all columns are of one kind and share the width; else the first takes what they leave
};

QTableWidget* MakeReadingGrid(const GridText& text, QWidget* parent);

// Rows, heads and columns for text of this height; the grid gets the height that its rows need. Called after each
// change of the window's size.
void FitReadingGrid(QTableWidget& grid, double pixels);

}  // namespace tarvane
