// The toolkit's empty window: what the start of the planner is held against.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(780, 575);
    window.show();
    return QApplication::exec();
}
