// The resource library needs one translation unit of its own; the resources
// themselves are compiled in by qt_add_resources.
namespace tarvik { int resourcesAnchor() { return 0; } }
