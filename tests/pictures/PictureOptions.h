// What the tests of the pictures were started with.
#pragma once

// So many pixels of the screen make one of the windows.
extern int PictureScale;

// Whether the pictures are stored anew instead of compared.
extern bool PicturesAreStored;
