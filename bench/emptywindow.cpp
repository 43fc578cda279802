// What the toolkit itself needs: an empty main window that tells when it has been painted, and stays open.
#include <QApplication>
#include <QMainWindow>

#include <cstdio>

namespace {

class emptywindow : public QMainWindow {
protected:
    void paintEvent(QPaintEvent*) override {
        std::puts("first frame");
        std::fflush(stdout);
    }
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    emptywindow window;
    window.resize(480, 320);
    window.show();
    return QApplication::exec();
}
