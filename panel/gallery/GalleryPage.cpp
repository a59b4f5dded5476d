#include <panel/gallery/GalleryPage.hpp>

#include <algorithm>
#include <bramble/Action.hpp>
#include <panel/gallery/GalleryExample.hpp>
#include <panel/look/TitleLabel.hpp>
#include <parameters/rows/ContentArea.hpp>
#include <parameters/rows/MutedLabel.hpp>
#include <QEvent>
#include <QFrame>
#include <QVBoxLayout>

namespace Panel {

namespace {

constexpr int margin = 12;

/// The creators that make Qt editors; those of one type stand together, at the place of the first of them.
std::vector<Kolt::InputRegistry::Entry> creatorsByType() {
    std::vector<Kolt::InputRegistry::Entry> sorted;
    for (auto const& entry : Kolt::InputRegistry::theRegistry().entries()) {
        auto const creator = entry.creator.strong();
        if (!creator || !creator->getInterface<Kolt::QInputCreator>())
            continue;
        auto const last = std::find_if(sorted.rbegin(), sorted.rend(),
                                       [&](auto const& other) { return other.valueType == entry.valueType; });
        sorted.insert(last == sorted.rend() ? sorted.end() : last.base(), entry);
    }
    return sorted;
}

QWidget* makeSectionTitle(QString const& text) {
    auto* const section = new QWidget;
    auto* const layout = new QHBoxLayout(section);
    layout->setContentsMargins(0, margin, 0, 0);
    layout->addWidget(new TitleLabel(text));
    auto* const line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    // Of one colour: a relief falls apart where a pixel is drawn on one and a half.
    line->setFrameShadow(QFrame::Plain);
    // Of less weight than a text.
    line->setEnabled(false);
    layout->addWidget(line, 1);
    return section;
}

} // namespace

GalleryPage::GalleryPage(GalleryState state, QWidget* parent) : QWidget(parent) {
    for (auto const* const name : {"draft", "final"})
        pools_.emplace_back(new Kolt::ValuePool(name));
    if (state != GalleryState::NoPool)
        poolSource_.setPool(pools_.front());

    auto* const content = new QWidget;
    auto* const sections = new QVBoxLayout(content);
    sections->setContentsMargins(margin, margin, margin, margin);
    sections->setSpacing(6);
    titles_ = makeColumnTitles();
    sections->addWidget(titles_);
    addSections(sections, state);
    sections->addStretch(1);
    alignColumns();
    if (state == GalleryState::DeadParameter) {
        parameters_.clear();
        for (auto* const row : rows_)
            row->showPool();
    }

    auto* const scrollArea = new Talo::ContentArea;
    scrollArea->setAccessibleName(tr("Editors"));
    scrollArea->setWidget(content);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeHeader(state));
    layout->addWidget(scrollArea, 1);
}

GalleryPage::~GalleryPage() {
    // While parameters and pools still stand: what an editor does as it goes may need them.
    for (auto* const row : rows_)
        delete row;
}

QWidget* GalleryPage::makeHeader(GalleryState state) {
    auto* const header = new QWidget;
    auto* const layout = new QHBoxLayout(header);
    layout->setContentsMargins(margin, margin, margin, 0);
    auto* const description = new QLabel(galleryStateDescription(state));
    description->setWordWrap(true);
    Talo::alignWithLayout(*description);
    layout->addWidget(description, 1);
    if (state == GalleryState::PerPool)
        makePoolSelector(layout);
    return header;
}

void GalleryPage::makePoolSelector(QLayout* layout) {
    poolSelector_ = new QComboBox;
    poolSelector_->setAccessibleName(tr("Pool"));
    for (auto const& pool : pools_)
        poolSelector_->addItem(QString::fromStdString(pool->Name()));
    auto* const label = new QLabel(tr("P&ool:"));
    label->setBuddy(poolSelector_);
    layout->addWidget(label);
    layout->addWidget(poolSelector_);
    connect(poolSelector_, qOverload<int>(&QComboBox::currentIndexChanged), this, [this](int index) {
        poolSource_.setPool(pools_.at(static_cast<std::size_t>(index)));
        for (auto* const row : rows_)
            row->showPool();
    });
}

void GalleryPage::addSections(QVBoxLayout* layout, GalleryState state) {
    std::string type;
    for (auto const& entry : creatorsByType()) {
        if (entry.valueType != type)
            layout->addWidget(makeSectionTitle(valueTypeTitle(entry.valueType)));
        type = entry.valueType;
        auto const parameter = makeGalleryExample(entry, state, pools_);
        if (parameter) {
            connectActions(*parameter);
            parameters_.push_back(parameter);
        }
        auto* const row = new GalleryRow(entry, parameter, poolSource_);
        layout->addWidget(row);
        rows_.push_back(row);
    }
}

void GalleryPage::connectActions(Kolt::VParameter const& parameter) {
    auto const connectAction = [this](Kolt::ValuePtr const& value) {
        auto const action = Kolt::valueOr<Tessera::StrongPtr<Kolt::VAction>>(value, nullptr);
        if (!action)
            return;
        action->setHandler([this, name = QString::fromStdString(action->Name())](auto const&, auto const&) {
            emit actionFired(name);
        });
    };
    connectAction(parameter.ownValue());
    for (auto const& pool : pools_)
        connectAction(parameter.getLocalValue(pool, std::string(), false));
}

QWidget* GalleryPage::makeColumnTitles() const {
    auto* const titles = new QWidget;
    auto* const layout = new QHBoxLayout(titles);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(margin);
    for (auto const& text :
         {tr("Creator"), tr("First editor"), tr("Second editor"), tr("Raw value"), tr("Notifications")}) {
        auto* const label = new Talo::MutedLabel(text);
        Talo::alignWithLayout(*label);
        layout->addWidget(label);
    }
    return titles;
}

void GalleryPage::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    // Later, when the labels have the font, too.
    if (event->type() == QEvent::FontChange && titles_)
        QMetaObject::invokeMethod(this, &GalleryPage::alignColumns, Qt::QueuedConnection);
}

void GalleryPage::alignColumns() {
    auto* const layout = titles_->layout();
    auto const title = [&](int column) { return layout->itemAt(column)->widget(); };
    int name = title(0)->sizeHint().width();
    int editor = title(1)->sizeHint().width();
    int const counter = title(4)->sizeHint().width();
    for (auto const* const row : rows_) {
        name = qMax(name, row->nameWidth());
        editor = qMax(editor, row->editorWidth());
    }
    for (auto* const row : rows_)
        row->setColumnWidths(name, editor, counter);
    title(0)->setFixedWidth(name);
    for (int const column : {1, 2}) {
        title(column)->setMinimumWidth(editor);
        static_cast<QHBoxLayout*>(layout)->setStretch(column, 1);
    }
    if (!rows_.empty())
        title(3)->setFixedWidth(rows_.front()->rawValue()->sizeHint().width());
    title(4)->setFixedWidth(counter);
}

} // namespace Panel
