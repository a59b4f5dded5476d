#include <qVinputs/basics/qVString.hpp>

#include <algorithm>
#include <plugin/QInputWidgetCreator.hpp>
#include <QEvent>
#include <QPointer>
#include <QTextDocument>

namespace Kolt {

namespace {

bool isCommitTrigger(QEvent::Type type) {
    // Declared by Qt for keypad navigation alone.
    constexpr auto leaveEditFocus = static_cast<QEvent::Type>(151);
    return type == QEvent::FocusOut || type == QEvent::Leave || type == QEvent::ShortcutOverride ||
           type == leaveEditFocus;
}

/// Writes the text as UTF-8 into the room that the last one had. A long text is written at every key, so its parts are
/// converted one by one, in memory that stays in the cache: new memory for all of it takes longer than the conversion.
void writeUtf8(std::string& bytes, QStringView text) {
    constexpr qsizetype longestPart = 4096;
    bytes.clear();
    while (!text.isEmpty()) {
        auto const size = std::min(text.size(), longestPart);
        bool const splitsPair = size < text.size() && text.at(size - 1).isHighSurrogate();
        auto const part = text.left(splitsPair ? size + 1 : size);
        auto const utf8 = part.toUtf8();
        bytes.append(utf8.constData(), static_cast<std::size_t>(utf8.size()));
        text = text.mid(part.size());
    }
}

} // namespace

qVString::qVString(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource, PreferencesPtr const&)
    : QTextEdit(parent), VInputValue<string>(parameter, poolSource) {
    setAcceptRichText(false);
    readOwnValue();
    if (auto const font = smallBoldFont("DejaVu Sans Mono"))
        document()->setDefaultFont(*font);
    document()->setPlainText(QString::fromStdString(cached_));
    activateNotification();
}

qVString::~qVString() {
    destroying_ = true;
}

void qVString::onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) {
    // The input is notified of its own commits; a long document need not be read again for each of them.
    auto const* const typed = typedValue<string>(newValue.get());
    if (document()->revision() == committedRevision_ && typed && typed->holds(cached_))
        return;
    if (arrivalOf(newValue, context) == Arrival::OtherPool || !take(newValue, properties))
        return;
    auto const text = QString::fromStdString(cached_);
    if (document()->toPlainText() != text)
        document()->setPlainText(text);
}

void qVString::newText() {
    writeUtf8(cached_, document()->toPlainText());
    committedRevision_ = document()->revision();
    ValueNotifierList self;
    self.addNotifier(Tessera::WeakPtr<ValueNotifier>(this));
    commit(cached_, WithoutPool::Try, &self);
}

bool qVString::event(QEvent* event) {
    QPointer<qVString> const living(this);
    if (!destroying_ && isCommitTrigger(event->type()))
        newText();
    // A listener may have deleted the editor.
    return living ? QTextEdit::event(event) : true;
}

namespace {

TALO_STATIC_CREATOR QInputWidgetCreator<std::string, qVString> const
    multiLineCreator("string", PreferencesPtr(new VCreationPreferences(VValueTrait<std::string>::MultiLine())));

} // namespace

} // namespace Kolt
