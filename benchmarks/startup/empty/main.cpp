// The least that a program with a window can be: what the component's start is compared with.

#include <QApplication>
#include <QWidget>

#include <cstring>

/// With --without-gl the toolkit does not bring up OpenGL for its windows.
int main(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--without-gl") == 0)
        qputenv("QT_XCB_GL_INTEGRATION", "none");
    QApplication application(argc, argv);
    QWidget window;
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}
