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

/// A colour dialog that is kept: a request to close it hides it. It has a meta-object of its own, so that Qt shows its
/// own dialog on every desktop.
class MyColorDialog : public QColorDialog {
    Q_OBJECT

public:
    explicit MyColorDialog(QWidget* parent);
    ~MyColorDialog() override;

protected:
    void closeEvent(QCloseEvent* event) override;
};

/// Binds a colour parameter to a label. Not a widget itself: it makes its label on `parent` and is shown by it. Starts
/// with the pool's colour, else the parameter's own, else opaque black. The preferences are not looked at.
class qVColorInput : public VInputValue<Ferro::rgba_float_t> {
public:
    qVColorInput(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                 PreferencesPtr const& preferences);
    ~qVColorInput() override;

    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

    /// The label; null once it was destroyed.
    qVColor* label() const { return label_; }
    /// The colour last shown or chosen, with channels as the parameter has them.
    Ferro::rgba_float_t const& colour() const { return cached_; }
    /// The user's edit: takes a colour and writes it; shows it when it was stored. This input may be gone afterwards.
    void choose(Ferro::rgba_float_t const& colour);

private:
    bool showValue(ValuePtr const& value);

    QPointer<qVColor> label_;
};

/// Lets the input of a label live exactly as long as the label, whose child it is.
class qVColorInputKeeper : public QObject {
    Q_OBJECT

public:
    qVColorInputKeeper(std::unique_ptr<qVColorInput> input, QObject* label);
    ~qVColorInputKeeper() override;

private:
    std::unique_ptr<qVColorInput> const input_;
};

/// Shows a colour as a framed swatch with the alpha value as its text. A press opens a colour dialog with an alpha
/// channel, which the label keeps; every colour chosen there is written at once. A press by itself writes nothing.
///
/// Palette and dialog show each channel within 0 to 1, and 0 for one that is not a number; the text shows the alpha
/// value as it is.
class qVColor : public QLabel {
    Q_OBJECT

public:
    /// The label refers to the input weakly.
    qVColor(qVColorInput& input, QWidget* parent);
    ~qVColor() override;

    void showColour(Ferro::rgba_float_t const& colour);

public slots:
    /// A colour was chosen; an invalid one is ignored.
    void colorChange(QColor const& color);

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    Tessera::WeakPtr<qVColorInput, ValueNotifier> const input_;
    QPointer<MyColorDialog> dialog_;
};

/// Offers qVColorInput for colours. Unlike the other creators it makes an input that is not a widget itself; the label
/// keeps the input alive as long as it lives.
class MyqVColorCreator : public VInputCreator<Ferro::rgba_float_t, VInputCreatorBase> {
public:
    MyqVColorCreator();
    ~MyqVColorCreator() override;

    /// The creator as the Qt front end sees it.
    class MyQCreator : public QInputCreator {
    public:
        explicit MyQCreator(MyqVColorCreator& creator);
        ~MyQCreator() override;

        /// Gives the label and its input.
        std::pair<QPointer<QWidget>, InputRef> create(ParameterRef const& parameter, QWidget* parent,
                                                      ValuePoolSource* poolSource) override;

    private:
        // The creator owns this interface.
        MyqVColorCreator& creator_;
    };
};

} // namespace Kolt
