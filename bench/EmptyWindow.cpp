// The rival of the program's start: a window of the same size with nothing in it.

#include <QApplication>
#include <QWidget>

int main(int argumentCount, char** arguments) {
    const QApplication application(argumentCount, arguments);
    QWidget window;
    window.resize(801, 556);
    window.show();
    return QApplication::exec();
}
