#include <parameters/rows/MixedButton.hpp>

#include <QKeyEvent>
#include <QMenu>

namespace Talo {

namespace {

// More are neither listed nor named.
constexpr int mostChoices = 12;
constexpr int mostObjects = 4;

QString choiceText(MixedButton::Choice const& choice) {
    auto objects = choice.objects;
    int const further = objects.size() - mostObjects;
    if (further > 0)
        objects = objects.mid(0, mostObjects) << QString(QChar(0x2026));
    return MixedButton::tr("%1 (%2)", "a value and the objects that have it")
        .arg(choice.text, objects.join(QLatin1String(", ")));
}

} // namespace

MixedButton::MixedButton(QWidget* parent) : QToolButton(parent) {
    setPopupMode(QToolButton::MenuButtonPopup);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setMenu(new QMenu(this));
    connect(this, &MixedButton::clicked, this, &MixedButton::editRequested);
}

MixedButton::~MixedButton() = default;

void MixedButton::setChoices(QString const& parameterName, std::vector<Choice> const& choices) {
    setText(tr("mixed"));
    setAccessibleName(tr("%1: mixed values").arg(parameterName));
    menu()->clear();
    menu()->addAction(tr("&Edit"), this, &MixedButton::editRequested);
    menu()->addSection(tr("Set all to"));
    QStringList lines;
    for (std::size_t number = 0; number < choices.size() && number < mostChoices; ++number) {
        auto const text = choiceText(choices[number]);
        lines << text.toHtmlEscaped();
        auto label = text;
        connect(menu()->addAction(label.replace(QLatin1Char('&'), QLatin1String("&&"))), &QAction::triggered, this,
                [this, number] { emit chosen(static_cast<int>(number)); });
    }
    setToolTip(QStringLiteral("<p>%1</p>").arg(lines.join(QLatin1String("<br>"))));
}

void MixedButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Down)
        menu()->popup(mapToGlobal(rect().bottomLeft()));
    else
        QToolButton::keyPressEvent(event);
}

} // namespace Talo
