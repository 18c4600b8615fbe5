#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// A record with a member of every kind, empty by default, so that a test sees what was read.
struct AllKinds : Record {
    struct Inner : Record {
        void Fields(FieldIo& io) override { io.Uint(u"count", count); }

        std::uint32_t count = 0;
    };

    struct Name : SingleLineArchivable {
        void Read(Label label, Archive& archive) override { archive.Read(label, text.Buffer().m_Buffer, 20); }
        void Write(Label label, Archive& archive) const override { archive.Write(label, text.Units(), 20); }

        FixedString<20> text;
    };

    // Each member has another value.
    static AllKinds Filled() {
        AllKinds all;
        all.color = {1.0f, 0.5f, 0.0f, 0.25f};
        all.rectangle = {10, 20, 40, 60};
        all.size = {-1, 2};
        all.point = {3, INT32_MIN};
        all.quad = {0.5f, 1.5f, -2.5f, 1e9f};
        all.matrix44.rows[3][0] = -6.25f;
        all.matrix33.rows[1][2] = 6.25f;
        all.vector3 = {1.0f, -2.0f, 0.0000005f};
        all.string.Assign(u"a \"b\" %s ö");
        all.int64 = INT64_MIN;
        all.boolean = true;
        all.real = 1.0 / 3;
        all.single = 0.1f;
        all.integer = -7;
        all.name.text.Assign(u"by name");
        all.inner.count = 3000000000;
        return all;
    }

    void Fields(FieldIo& io) override {
        io.Color(u"color", color);
        io.Rectangle(u"rectangle", rectangle);
        io.Size(u"size", size);
        io.Point(u"point", point);
        io.Quad(u"quad", quad);
        io.Matrix44(u"matrix44", matrix44);
        io.Matrix33(u"matrix33", matrix33);
        io.Vector3(u"vector3", vector3);
        io.String(u"string", string);
        io.Int64(u"int64", int64);
        io.Bool(u"bool", boolean);
        io.Double(u"double", real);
        io.Float(u"float", single);
        io.Int(u"int", integer);
        io.Value(u"value", name);
        io.Record(u"record", inner);
    }

    Color color;
    Rectangle rectangle;
    Size size;
    Point point;
    Quad quad;
    Matrix44 matrix44;
    Matrix33 matrix33;
    Vector3 vector3;
    FixedString<20> string;
    std::int64_t int64 = 0;
    Bool boolean = false;
    double real = 0.0;
    float single = 0.0f;
    std::int32_t integer = 0;
    Name name;
    Inner inner;
};

} // namespace Vorn
