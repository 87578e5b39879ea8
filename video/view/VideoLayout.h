#pragma once
// The grid layouts of the video area and their geometry.
enum EN_VIDEO_LAYOUT
{
    VIDEO_LAYOUT_NONE = 0,
    VIDEO_LAYOUT_1 = 1,
    VIDEO_LAYOUT_2 = 2,
    VIDEO_LAYOUT_4 = 4,
    VIDEO_LAYOUT_9 = 9,
    VIDEO_LAYOUT_16 = 16
};

// The layout with that value, VIDEO_LAYOUT_NONE for any other integer.
EN_VIDEO_LAYOUT getVideoLayout(int value);
// Views, columns and rows of a layout; 0 for anything that is not a layout.
int getVideoNumber(int layout);
int getColumn(int layout);
int getRow(int layout);
// The next larger layout (1 -> 2 -> 4 -> 9 -> 16); VIDEO_LAYOUT_NONE after 16.
EN_VIDEO_LAYOUT nextVideoLayout(EN_VIDEO_LAYOUT layout);
