#pragma once

#include <plugin/VInputValue.hpp>

#include <bramble/Color.hpp>
#include <lattice/CreationPreferences.hpp>
#include <memory>
#include <QColorDialog>
#include <QLabel>
#include <QPointer>
#include <sorrel/QInputCreator.hpp>

namespace Kolt {

class qVColor;

/// A colour dialog that lives on when it is closed: a request to close it hides it. It has a meta-object of its own, so
/// that Qt shows its own dialog on every desktop instead of a native one.
class MyColorDialog : public QColorDialog {
    Q_OBJECT

public:
    /// `parent` owns the dialog.
    explicit MyColorDialog(QWidget* parent);
    ~MyColorDialog() override;

protected:
    /// Hides the dialog.
    void closeEvent(QCloseEvent* event) override;
};

/// Binds a colour parameter to a label. It is no widget itself: it makes its label on `parent`, and the label shows its
/// colour. It starts with the pool's colour, else the parameter's own, else opaque black. User-interface thread.
class qVColorInput : public VInputValue<Ferro::rgba_float_t> {
public:
    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` is not read.
    qVColorInput(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                 PreferencesPtr const& preferences);
    ~qVColorInput() override;

    /// Shows a colour of the input's pool; any other value is ignored.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

    /// The label; null once it was destroyed.
    qVColor* label() const { return label_; }
    /// The colour last shown or chosen, with channels as the parameter has them.
    Ferro::rgba_float_t const& colour() const { return cached_; }
    /// The user chose a colour: writes it, and shows it if it was stored. This input may be deleted meanwhile.
    void choose(Ferro::rgba_float_t const& colour);

private:
    /// Shows a colour without writing it; false for any other value.
    bool showValue(ValuePtr const& value);

    // Owned by its parent; it owns this input.
    QPointer<qVColor> label_;
};

/// Owns the input of a label and is a child of the label, so that the input lives exactly as long.
class qVColorInputKeeper : public QObject {
    Q_OBJECT

public:
    /// `label` owns the keeper.
    qVColorInputKeeper(std::unique_ptr<qVColorInput> input, QObject* label);
    ~qVColorInputKeeper() override;

private:
    std::unique_ptr<qVColorInput> const input_;
};

/// Shows a colour as a framed swatch with the alpha value as its text. A press opens a colour dialog with an alpha
/// channel, which belongs to the label; every colour chosen there is written at once. A press alone writes nothing.
///
/// Palette and dialog show each channel within 0 to 1, and 0 for one that is not a number; the text shows the alpha
/// value as it is.
class qVColor : public QLabel {
    Q_OBJECT

public:
    /// The label refers to the input weakly.
    qVColor(qVColorInput& input, QWidget* parent);
    ~qVColor() override;

    /// Shows a colour; any channels.
    void showColour(Ferro::rgba_float_t const& colour);

public slots:
    /// A colour was chosen; an invalid one is ignored.
    void colorChange(QColor const& color);

protected:
    /// Opens the dialog with the input's colour; if the input was deleted, only the text changes.
    void mousePressEvent(QMouseEvent* event) override;

private:
    Tessera::WeakPtr<qVColorInput, ValueNotifier> const input_;
    // A child, made with the label; null if it was deleted.
    QPointer<MyColorDialog> dialog_;
};

/// Offers qVColorInput for colours, as QInputWidgetCreator does for widgets. Unlike its inputs, this one is no widget;
/// the label owns it. Made once, as a static object of the plug-in.
class MyqVColorCreator : public VInputCreator<Ferro::rgba_float_t, VInputCreatorBase> {
public:
    /// Registers the creator "ColorDisplay". If the host refuses, a warning is printed and passed to the host.
    MyqVColorCreator();
    ~MyqVColorCreator() override;

    /// The creator as the Qt front end sees it.
    class MyQCreator : public QInputCreator {
    public:
        /// `creator` owns this object.
        explicit MyQCreator(MyqVColorCreator& creator);
        ~MyQCreator() override;

        /// Makes a label on `parent`, and its input; gives both.
        std::pair<QPointer<QWidget>, InputRef> create(ParameterRef const& parameter, QWidget* parent,
                                                      ValuePoolSource* poolSource) override;

    private:
        // The creator owns this interface.
        MyqVColorCreator& creator_;
    };
};

} // namespace Kolt
