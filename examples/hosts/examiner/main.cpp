#include "ExaminerWindow.h"

#include <vexel/viewer/SoQt.h>

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    SoQt::init(nullptr);
    ExaminerWindow window;
    window.show();
    return SoQt::mainLoop();
}
