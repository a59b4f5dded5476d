#include <parameters/rows/FileButtonText.hpp>

#include <parameters/input/FileDialogHelp.hpp>
#include <parameters/OnePool.hpp>
#include <parameters/rows/AccessibleFileButton.hpp>
#include <parameters/rows/ButtonCaption.hpp>
#include <sorrel/InputFrontEnd.hpp>

namespace Talo {

namespace {

/// What an editor like that of the parameter shows for an empty name.
QString captionFor(Kolt::VParameter const& parameter) {
    Kolt::ParameterPtr const empty(new Kolt::VParameter(parameter.Name(), Kolt::makeValue(std::string())));
    empty->setCreationPreferences(parameter.creationPreferences());
    OnePool pool;
    auto const editor = Kolt::makeEditor(empty, nullptr, &pool);
    auto* const button = qobject_cast<QPushButton*>(editor.widget.data());
    auto const caption = button ? button->text() : QString();
    delete editor.widget;
    return caption;
}

} // namespace

FileButtonText* FileButtonText::makeFor(QWidget& editor, Kolt::ParameterPtr const& parameter,
                                        PoolSourceRef const& pools) {
    auto* const button = qobject_cast<QPushButton*>(&editor);
    bool const isText = parameter->declaredType() == Tessera::Typename(typeid(std::string));
    return button && isText ? new FileButtonText(*button, parameter, pools) : nullptr;
}

FileButtonText::FileButtonText(QPushButton& button, Kolt::ParameterPtr const& parameter, PoolSourceRef const& pools)
    : EditorExtension(&button),
      button_(button),
      parameter_(parameter),
      pools_(pools),
      caption_(captionFor(*parameter)) {
    auto const* const properties = parameter->properties();
    if (auto const kinds = properties ? properties->getValue("Extension") : nullptr)
        button.setProperty(FileKindsProperty, QString::fromStdString(kinds->Text()));
    AccessibleFileButton::attach(button, this);
    refresh();
}

FileButtonText::~FileButtonText() = default;

void FileButtonText::refresh() {
    auto const parameter = parameter_.strong();
    if (!parameter)
        return;
    name_ = QString::fromStdString(parameter->effectiveValue(pools_.pool())->Text());
    if (name_.isEmpty() || button_.text().isEmpty())
        button_.setText(caption_);
    button_.setToolTip(name_.isEmpty() ? QString() : tr("%1: %2").arg(shownCaption(caption_), name_));
}

} // namespace Talo
