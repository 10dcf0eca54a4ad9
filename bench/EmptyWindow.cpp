// The rival of the program's start: a window of the same size with nothing in it, or, with an argument, with these
// words.

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
