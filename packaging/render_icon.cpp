// Renders the program's SVG icon into a PNG of the size asked, with Qt's own
// SVG renderer, while building: tolmar-render-icon IN.svg OUT.png SIZE.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "usage: tolmar-render-icon IN.svg OUT.png SIZE\n");
    return 2;
  }
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  const int size = std::atoi(argv[3]);
  QSvgRenderer svg(QString::fromLocal8Bit(argv[1]));
  if (!svg.isValid() || size <= 0 || size > 4096) {
    std::fprintf(stderr, "tolmar-render-icon: cannot render %s at %s px\n", argv[1], argv[3]);
    return 1;
  }
  QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  svg.render(&p);
  p.end();
  if (!image.save(QString::fromLocal8Bit(argv[2]), "PNG")) {
    std::fprintf(stderr, "tolmar-render-icon: cannot write %s\n", argv[2]);
    return 1;
  }
  return 0;
}
