// What a start cannot do without: a window of the program's size with nothing in it.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char* argv[]) {
    QApplication applicazione(argc, argv);
    QMainWindow finestra;
    finestra.resize(1280, 720);
    finestra.show();
    return QApplication::exec();
}
