#pragma once

class QApplication;

namespace tarvik {

// One dark look for every window: footage is judged against dark surroundings.
void applyApplicationStyle(QApplication& app);

}  // namespace tarvik
