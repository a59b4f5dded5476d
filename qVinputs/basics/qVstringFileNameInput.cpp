#include <qVinputs/basics/qVstringFileNameInput.hpp>

#include <lattice/Scheduler.hpp>
#include <limits>
#include <plugin/QInputWidgetCreator.hpp>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

namespace Kolt {

VQStringFileNameInput::VQStringFileNameInput(ParameterRef const& parameter, QWidget* parent,
                                             ValuePoolSource* poolSource, PreferencesPtr const& preferences)
    : QPushButton(parent), VInputValue<string>(parameter, poolSource) {
    readOwnValue();
    if (preferences && preferences->contains("FileInput")) {
        isOpenDialog_ = true;
        if (cached_.empty())
            setText(tr("Select File"));
        else
            showName(QString::fromStdString(cached_));
    } else if (preferences && preferences->contains("Save as PDF")) {
        setText(tr("Save as PDF"));
        filter_ = tr("PDF (*.pdf)");
    } else {
        setText(tr("Save as"));
    }
    if (auto const font = smallBoldFont("Arial"))
        setFont(*font);
    activateNotification();
    connect(this, &QPushButton::released, this, &VQStringFileNameInput::myFileNameGui);
}

VQStringFileNameInput::~VQStringFileNameInput() {
    // An open dialog is on the stack of the slot, so it must not die as a child of the button.
    auto const dialogs = findChildren<QFileDialog*>(QString(), Qt::FindDirectChildrenOnly);
    for (auto* const dialog : dialogs) {
        dialog->reject();
        dialog->setParent(nullptr);
    }
}

void VQStringFileNameInput::onValueChange(ValuePtr const& newValue, VContext const& context,
                                          ValueMap const* properties) {
    if (arrivalOf(newValue, context) != Arrival::OtherPool && take(newValue, properties))
        showName(QString::fromStdString(cached_));
}

void VQStringFileNameInput::showName(QString const& name) {
    setText(literalCaption(QFileInfo(name).baseName()));
    setToolTip(name);
}

QString VQStringFileNameInput::chooseName() {
    auto const directory = QString::fromStdString(cached_);
    if (!isOpenDialog_)
        return QFileDialog::getSaveFileName(this, tr("Save File"), directory, filter_);
    auto const filter = QString::fromStdString(textProperty(owner().strong(), "Extension"));
    return QFileDialog::getOpenFileName(this, tr("Select File"), directory, filter);
}

void VQStringFileNameInput::myFileNameGui() {
    class It : public VManagedObjectIterator {
    public:
        It(PoolPtr pool, ParameterPtr parameter) : pool_(std::move(pool)), parameter_(std::move(parameter)) {}

        bool visit(VManagedObject& managed) override {
            auto* const object = dynamic_cast<VObject*>(&managed);
            if (object && object->findSlot(parameter_))
                VScheduler::schedule(Tessera::WeakPtr<VObject, VManagedObjectBase>(object).strong(), 0.0, pool_);
            return true;
        }

    private:
        PoolPtr pool_;
        ParameterPtr parameter_;
    };

    QPointer<VQStringFileNameInput> const living(this);
    auto const name = chooseName();
    if (!living)
        return;
    if (isOpenDialog_) {
        showName(name);
        if (name.isEmpty())
            setText(QLatin1String("Select File"));
    }

    // Copies: the commit may delete the button.
    auto const parameter = owner();
    auto const currentPool = pool();
    cached_ = name.toStdString();
    commit(cached_, WithoutPool::Try);
    if (name.isEmpty())
        return;
    It iterator(currentPool, parameter.strong());
    VManagedObject::traverse(typeid(VObject), iterator, std::numeric_limits<int>::min(),
                             std::numeric_limits<int>::max());
}

namespace {

using FileNameCreator = QInputWidgetCreator<std::string, VQStringFileNameInput>;

TALO_STATIC_CREATOR FileNameCreator const saveCreator("FileNameCreator",
                                                      PreferencesPtr(new VCreationPreferences("Save as")));
TALO_STATIC_CREATOR FileNameCreator const savePdfCreator("FileNameCreatorPDF",
                                                         PreferencesPtr(new VCreationPreferences("Save as PDF")));
TALO_STATIC_CREATOR FileNameCreator const openCreator("OpenFileCreator",
                                                      PreferencesPtr(new VCreationPreferences("FileInput")));

} // namespace

} // namespace Kolt
