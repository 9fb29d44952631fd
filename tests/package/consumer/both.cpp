#include <KelControls8/HeadlessForm.h>
#include <KelControls8/KelTextWidget.h>

#include <cstdio>
#include <QApplication>

/// What is typed into a form in memory is shown by a widget.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    kel::HeadlessForm form(argc > 1 ? argv[1] : "");
    form.play("tab\npaste \"elbow\"");
    KelTextWidget article;
    article.setText(QString::fromStdU16String(std::get<std::u16string>(form.get("txtArticle", "Text"))));
    std::printf("%s\n", qPrintable(article.text()));
    return 0;
}
