#pragma once
// Whether video pictures are drawn by the processor instead of through
// OpenGL. Where the only OpenGL is a software rasteriser (a machine without
// a graphics card, a virtual display), each picture that goes through it is
// drawn twice more than it has to be: into a texture, then with the whole
// window into the window's buffer, which is copied out again. Drawn by the
// processor straight at the size it is shown, a picture only repaints its
// own part of the window.
//
// TARVIK_PICTURES=software or =opengl chooses regardless of the machine.

namespace tarvik {

// Decided once, on the interface thread, after the application exists.
bool softwarePictures();

// Web views are composed with the window. Composed through OpenGL they turn
// the whole window into an OpenGL window, composed again with every change
// of any part of it; with software pictures they are drawn in software too.
// Call before the first web view is made.
void prepareWebViews();

}  // namespace tarvik
