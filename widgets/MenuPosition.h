#pragma once
// Where a pop-up menu opens so that it stays on the screen under the cursor.
#include <QPoint>
#include <QSize>

// Top-left corner for a pop-up of the size opened at pos (global
// coordinates) on the screen that holds pos, or the primary screen.
QPoint getMenuPos(QPoint pos, QSize size);
