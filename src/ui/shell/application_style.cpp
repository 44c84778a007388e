#include "ui/shell/application_style.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace tarvik {

void applyApplicationStyle(QApplication& app) {
    app.setStyle(QStyleFactory::create("Fusion"));
    QPalette p;
    const QColor window(0x17, 0x19, 0x1d), base(0x0f, 0x11, 0x14), text(0xe6, 0xe8, 0xeb);
    const QColor accent(0xf2, 0xa3, 0x3a);
    p.setColor(QPalette::Window, window);
    p.setColor(QPalette::WindowText, text);
    p.setColor(QPalette::Base, base);
    p.setColor(QPalette::AlternateBase, QColor(0x1b, 0x1e, 0x23));
    p.setColor(QPalette::Text, text);
    p.setColor(QPalette::Button, QColor(0x24, 0x27, 0x2d));
    p.setColor(QPalette::ButtonText, text);
    p.setColor(QPalette::ToolTipBase, QColor(0x24, 0x27, 0x2d));
    p.setColor(QPalette::ToolTipText, text);
    p.setColor(QPalette::Highlight, accent.darker(160));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Link, accent);
    p.setColor(QPalette::PlaceholderText, QColor(0x80, 0x85, 0x8c));
    p.setColor(QPalette::Disabled, QPalette::Text, QColor(0x6a, 0x6e, 0x75));
    p.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x6a, 0x6e, 0x75));
    p.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x6a, 0x6e, 0x75));
    app.setPalette(p);
    app.setStyleSheet(
        "QToolTip { border: 1px solid #3a3f47; padding: 3px; }"
        "QMenuBar { background: transparent; color: #c9cdd2; }"
        "QMenuBar::item:selected { background: #2c3037; }"
        "QMenu { background: #1d2025; border: 1px solid #33373e; }"
        "QMenu::item:selected { background: #3a3020; }"
        "QTableView { border: none; gridline-color: transparent; }"
        "QScrollArea { border: none; background: #000; }");
}

}  // namespace tarvik
