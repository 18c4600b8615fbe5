#pragma once

#include "engine/archive/archiveform.h"

// The bodies of ArchiveForm, included by the file that defines a form.

namespace Vorn {

template <class Form, class Base, class Value, class... Others>
void ValueOverrides<Form, Base, ValueList<Value, Others...>>::Read(Label label, Value& value) {
    static_cast<Form&>(*this).ReadValue(label, value);
}

template <class Form, class Base, class Value, class... Others>
void ValueOverrides<Form, Base, ValueList<Value, Others...>>::Write(Label label, const Value& value) {
    static_cast<Form&>(*this).WriteValue(label, value);
}

} // namespace Vorn
