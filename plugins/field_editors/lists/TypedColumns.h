#pragma once

#include <plugins/field_editors/lists/ListColumns.h>
#include <plugins/field_editors/values/ColorText.h>
#include <plugins/field_editors/values/Components.h>
#include <vexel/base/SbString.h>

/** Columns of a list type for which there is a single-value type. */
template <class List, class Single>
class TypedColumns : public ListColumns {
public:
    using Value = typename List::ValueType;

    std::unique_ptr<SoField> single(const SoMField& list, int row) const override
    {
        auto field = std::make_unique<Single>();
        field->setValue(valueOf(list, row));
        return field;
    }
    std::unique_ptr<SoMField> list(const SoField& single) const override
    {
        auto list = std::make_unique<List>();
        list->setValue(static_cast<const Single&>(single).getValue());
        return list;
    }

protected:
    static const Value& valueOf(const SoMField& list, int row) { return static_cast<const List&>(list)[row]; }
    static void setValue(SoMField& list, int row, const Value& value)
    {
        static_cast<List&>(list).set1Value(row, value);
    }
};

/** A column for each number of a value. */
template <class List, class Single>
class NumberColumns : public TypedColumns<List, Single> {
    using Base = TypedColumns<List, Single>;
    using Value = typename Base::Value;
    using Its = Components<Value>;

public:
    QStringList headers() const override
    {
        return Its::Count == 1 ? QStringList(QCoreApplication::translate("ListColumns", "Value")) : Its::names();
    }
    QString text(const SoMField& list, int row, int column) const override
    {
        return NumberText::of(Its::get(Base::valueOf(list, row), column), m_kind);
    }
    bool setText(SoMField& list, int row, int column, const QString& text, QString& problem) const override
    {
        const std::optional<double> number = NumberText::parse(text, m_kind, problem);
        if (number)
            setNumber(list, row, column, *number);
        return number.has_value();
    }
    void copyCell(SoMField& list, int fromRow, int toRow, int column) const override
    {
        setNumber(list, toRow, column, Its::get(Base::valueOf(list, fromRow), column));
    }
    std::optional<QColor> color(const SoMField& list, int row) const override
    {
        if constexpr (std::is_same_v<Value, SbColor>) {
            return ColorText::onScreen(Base::valueOf(list, row));
        } else {
            return ListColumns::color(list, row);
        }
    }
    bool areNumbers() const override { return true; }

private:
    void setNumber(SoMField& list, int row, int column, double number) const
    {
        Value value = Base::valueOf(list, row);
        Its::set(value, column, number);
        Base::setValue(list, row, value);
    }

    NumberKind m_kind = NumberKind::of<typename Its::Number>();
};

/** One column of texts without quotes. */
template <class List, class Single>
class StringColumns : public TypedColumns<List, Single> {
    using Base = TypedColumns<List, Single>;

public:
    QStringList headers() const override { return {QCoreApplication::translate("ListColumns", "Text")}; }
    QString text(const SoMField& list, int row, int) const override { return Base::valueOf(list, row).toQString(); }
    bool setText(SoMField& list, int row, int, const QString& text, QString&) const override
    {
        Base::setValue(list, row, SbString(text));
        return true;
    }
    void copyCell(SoMField& list, int fromRow, int toRow, int) const override
    {
        Base::setValue(list, toRow, SbString(Base::valueOf(list, fromRow)));
    }
};
