#pragma once

#include <QColor>

class QApplication;
class QWidget;

namespace tarvane {

// The colours of the house: a ball park by day, charts on cream paper. Each pair of text and ground that the screens
// use is readable (a contrast of 4.5 or more); tests/ui holds them to it.
namespace theme {
inline const QColor kField{0x1D, 0x4D, 0x36};
inline const QColor kFieldDeep{0x10, 0x30, 0x21};
inline const QColor kFieldLine{0x3B, 0x7A, 0x5A};
inline const QColor kCream{0xF6, 0xF0, 0xDD};
inline const QColor kPaper{0xFB, 0xF8, 0xEC};
inline const QColor kPaperLine{0xD8, 0xCD, 0xAE};
inline const QColor kInk{0x26, 0x25, 0x1F};
inline const QColor kInkSoft{0x5F, 0x59, 0x4B};
inline const QColor kGold{0xE8, 0xBE, 0x54};
inline const QColor kClay{0xA8, 0x4E, 0x2A};
inline const QColor kBoard{0x0B, 0x24, 0x19};
}  // namespace theme

// Style, palette and style sheet of the whole program.
void ApplyTheme(QApplication& application);

// Sets the font of a window and of all in it whose dynamic property "fontScale" asks for a multiple of it. pixels is
// the height of plain text.
void ScaleFonts(QWidget& window, double pixels);

// Plain text for a window of this size: 13 pixels at 1024x768, growing with the window up to 20.
double TextPixels(int width, int height);

}  // namespace tarvane
