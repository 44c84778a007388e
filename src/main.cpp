#include <QApplication>
#include <QLabel>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QLabel l("Tarvik Viewer");
    l.show();
    return app.exec();
}
