#pragma once

#include "engine/archive/archivable.h"

namespace Vorn {

// Overrides the Read and Write of each kind of a list for the class `Form` by its ReadValue and WriteValue, which are
// chosen by the type of the value: most forms have one for all values that are made of 32-bit words.
template <class Form, class Base, class List>
class ValueOverrides;

template <class Form, class Base>
class ValueOverrides<Form, Base, ValueList<>> : public Base {
public:
    using Base::Base;
    using Base::Read;
    using Base::Write;
};

template <class Form, class Base, class Value, class... Others>
class ValueOverrides<Form, Base, ValueList<Value, Others...>>
    : public ValueOverrides<Form, Base, ValueList<Others...>> {
    using Rest = ValueOverrides<Form, Base, ValueList<Others...>>;

public:
    using Rest::Read;
    using Rest::Rest;
    using Rest::Write;

    void Read(Label label, Value& value) final;
    void Write(Label label, const Value& value) final;
};

// The base of an archive form. A form adds ReadValue and WriteValue for its values and overrides the operations on
// texts. Records and values of one line transfer themselves unless it overrides those too.
template <class Form, class Base = Archive>
class ArchiveForm : public ValueOverrides<Form, Base, ArchiveValues> {
    using Overrides = ValueOverrides<Form, Base, ArchiveValues>;

public:
    using Overrides::Overrides;
    using Overrides::Read;
    using Overrides::Write;

    void Read(Label label, SingleLineArchivable& value) override { value.Read(label, *this); }
    void Read(Label, Archivable& value, std::int32_t _version) override { value.Read(*this, _version); }
    void Read(Label, Archivable& value) override { value.Read(*this); }
    void Write(Label label, const SingleLineArchivable& value) override { value.Write(label, *this); }
    void Write(Label, const Archivable& value) override { value.Write(*this); }
};

} // namespace Vorn
