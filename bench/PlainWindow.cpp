// The rival of the program's start: a window of the same size with the words of its argument, or with nothing in it.

#include <QApplication>
#include <QLabel>
#include <QWidget>

int main(int argumentCount, char** arguments) {
    const QApplication application(argumentCount, arguments);
    QWidget window;
    window.resize(801, 556);
    if (argumentCount > 1) {
        new QLabel(QString::fromLatin1(arguments[1]), &window);
    }
    window.show();
    return QApplication::exec();
}
