#include <QApplication>
#include <QWidget>

// What any program with Qt's widgets takes to start, to compare the panel's start with.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.resize(800, 735);
    window.show();
    return QApplication::exec();
}
