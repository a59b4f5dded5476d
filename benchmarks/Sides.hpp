#pragma once

#include "BenchmarkCase.hpp"

#include <QBoxLayout>
#include <QScrollArea>
#include <sorrel/InputFrontEnd.hpp>

/// Who makes the editors of one kind, and changes their values: a program of bare Qt, or a host with the plug-in.
class Side {
public:
    virtual ~Side() = default;
    /// Makes the next editor; the parent owns it.
    virtual QWidget* makeEditor(QWidget* parent) = 0;
    /// The program changes the value of the first editor.
    virtual void change(int n) = 0;
};

class BareSide : public Side {
public:
    /// The case must outlive the side.
    BareSide(BenchmarkCase const& benchmarkCase, int count);
    QWidget* makeEditor(QWidget* parent) override;
    void change(int n) override { first_->change(n); }

private:
    BenchmarkCase const& case_;
    BareEditor* first_ = nullptr;
};

/// The parameters stand from the start, as they are there before their editors.
class PluginSide : public Side, private Kolt::ValuePoolSource {
public:
    /// The case must outlive the side; `count` is how many editors will be made.
    PluginSide(BenchmarkCase const& benchmarkCase, int count);
    ~PluginSide() override;
    QWidget* makeEditor(QWidget* parent) override;
    void change(int n) override { case_.change(*parameters_.front(), n); }

private:
    Tessera::StrongPtr<Kolt::ValuePoolProvider> getValuePoolProvider() const override { return provider_; }

    BenchmarkCase const& case_;
    Tessera::StrongPtr<Kolt::ValuePoolProvider> provider_;
    std::vector<Kolt::ParameterPtr> parameters_;
    std::size_t next_ = 0;
};

/// A window with editors below each other in a scroll area.
class EditorWindow {
public:
    EditorWindow();
    /// Makes that many editors.
    void fill(Side& side, int count);
    /// Shows the window and waits until it is painted.
    void show();
    /// The first editor.
    QWidget& first() { return *first_; }

private:
    QScrollArea area_;
    QWidget* const content_;
    QVBoxLayout* const layout_;
    QWidget* first_ = nullptr;
};
