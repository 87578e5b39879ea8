#include "VideoLayout.h"

namespace {
// Indexed by layout value - 1.
const int kNumber[16] = { 1, 2, 0, 4, 0, 0, 0, 0, 9, 0, 0, 0, 0, 0, 0, 16 };
const int kColumn[16] = { 1, 2, 0, 2, 0, 0, 0, 0, 3, 0, 0, 0, 0, 0, 0, 4 };
const int kRow[16] = { 1, 1, 0, 2, 0, 0, 0, 0, 3, 0, 0, 0, 0, 0, 0, 4 };

int lookup(const int* table, int layout)
{
    return (layout >= 1 && layout <= 16) ? table[layout - 1] : 0;
}
}

EN_VIDEO_LAYOUT getVideoLayout(int value)
{
    switch (value) {
    case 1: return VIDEO_LAYOUT_1;
    case 2: return VIDEO_LAYOUT_2;
    case 4: return VIDEO_LAYOUT_4;
    case 9: return VIDEO_LAYOUT_9;
    case 16: return VIDEO_LAYOUT_16;
    default: return VIDEO_LAYOUT_NONE;
    }
}

int getVideoNumber(int layout)
{
    return lookup(kNumber, layout);
}

int getColumn(int layout)
{
    return lookup(kColumn, layout);
}

int getRow(int layout)
{
    return lookup(kRow, layout);
}

EN_VIDEO_LAYOUT nextVideoLayout(EN_VIDEO_LAYOUT layout)
{
    switch (layout) {
    case VIDEO_LAYOUT_1: return VIDEO_LAYOUT_2;
    case VIDEO_LAYOUT_2: return VIDEO_LAYOUT_4;
    case VIDEO_LAYOUT_4: return VIDEO_LAYOUT_9;
    case VIDEO_LAYOUT_9: return VIDEO_LAYOUT_16;
    default: return VIDEO_LAYOUT_NONE;
    }
}
