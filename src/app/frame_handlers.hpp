#pragma once

#include "field3d/raster/frame.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/record_operators.hpp"
#include "script/engine/macro.hpp"

// Making and framing a field: commands that are the same for every list of 3-D fields.
namespace morvane {
// An empty field of the kind in force.
template <auto *LIST> void CLEAR_FIELD(TMACRO *) {
    LIST->CURRENT().DONE();
    LIST->CURRENT().INIT(LIST->DEFAULTKIND);
}

// new [x y z | <x, y, z>]: a zero field of the kind in force; without parameters of the size in
// use. A size below 1 makes an empty field. The frame is lost in every case.
template <auto *LIST> void NEW_FIELD(TMACRO *engine) {
    auto &field = LIST->CURRENT();
    const NAT count = engine->PARAMETERLENGTH();
    if (count != 0 && count != 1 && count != 3) return engine->PARAMETERERROR(3);
    VECTORNAT size = field.SIZE();
    if (count == 1) size = GETVECTORNAT(engine->GETPARAMETER(1));
    if (count == 3)
        size = {GETNAT(engine->GETPARAMETER(1)), GETNAT(engine->GETPARAMETER(2)),
                GETNAT(engine->GETPARAMETER(3))};
    field.DONE();
    if (size.x < 1 || size.y < 1 || size.z < 1) return field.INIT(LIST->DEFAULTKIND);
    field.INIT(LIST->DEFAULTKIND, size.x, size.y, size.z);
}

// Changes the frame of the current field by `edit`.
template <auto *LIST, class EDIT> void EDIT_FRAME(EDIT &&edit) {
    FRAME frame = LIST->CURRENT().GETFRAME();
    edit(frame);
    LIST->CURRENT().SETFRAME(frame);
}

template <auto *LIST> void SIZE_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(LIST->CURRENT().SIZE());
}

// The middle in voxels, as reals.
template <auto *LIST> void CENTER_LAMD(TMACRO *engine) {
    const VECTORNAT size = LIST->CURRENT().SIZE();
    engine->COMMAND_RESULT =
        GETSTRING(VECTOR{static_cast<REAL>(size.x) / 2, static_cast<REAL>(size.y) / 2,
                         static_cast<REAL>(size.z) / 2});
}

template <auto *LIST> void ORIGIN_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(LIST->CURRENT().GETFRAME().MOVE());
}

template <auto *LIST> void MATRIX_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(LIST->CURRENT().GETFRAME().MATRIX());
}

template <auto *LIST, std::size_t ROW> void MATRIX_ROW_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(LIST->CURRENT().GETFRAME().MATRIX()[ROW]);
}

// offset := size * scale / -2, so that the middle of the field is the global origin.
template <auto *LIST> void CENTER(TMACRO *) {
    EDIT_FRAME<LIST>([](FRAME &frame) { frame.CENTER(LIST->CURRENT().SIZE()); });
}

// origin [vector]: without a vector the offset becomes zero.
template <auto *LIST> void ORIGIN(TMACRO *engine) {
    if (engine->PARAMETERLENGTH() > 1) return engine->PARAMETERERROR(1);
    const VECTOR offset = GETVECTOR(engine->GETPARAMETER_ERRORFREE(1));
    EDIT_FRAME<LIST>([&](FRAME &frame) { frame.SETMOVE(offset); });
}

template <auto *LIST> void ORIGIN_ADD(TMACRO *engine) {
    const VECTOR shift = GETVECTOR(engine->GETPARAMETER(1));
    EDIT_FRAME<LIST>([&](FRAME &frame) { frame.SETMOVE(frame.MOVE() + shift); });
}

template <auto *LIST> void MATRIX_SET(TMACRO *engine) {
    const MATRIX3 matrix{{GETVECTOR(engine->GETPARAMETER(1)), GETVECTOR(engine->GETPARAMETER(2)),
                          GETVECTOR(engine->GETPARAMETER(3))}};
    EDIT_FRAME<LIST>([&](FRAME &frame) { frame.SETMATRIX_CHECKED(matrix); });
}

template <auto *LIST> void SCALE(TMACRO *engine) {
    const VECTOR scale = GETVECTOR(engine->GETPARAMETER(1));
    EDIT_FRAME<LIST>([&](FRAME &frame) { frame.SETSCALE(scale); });
}

template <auto *LIST> void SCALE_REF(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(LIST->CURRENT().GETFRAME().SCALE());
}

template <auto *LIST> void SCALE_MUL(TMACRO *engine) {
    const VECTOR scale = GETVECTOR(engine->GETPARAMETER(1));
    EDIT_FRAME<LIST>([&](FRAME &frame) { frame.MULSCALE(scale); });
}

template <auto *LIST> void SCALE_NORM(TMACRO *) {
    EDIT_FRAME<LIST>([](FRAME &frame) { frame.NORMSCALE(); });
}
template <auto *LIST> void UNFLIP(TMACRO *) {
    EDIT_FRAME<LIST>([](FRAME &frame) { frame.UNFLIP(); });
}
template <auto *LIST> void UNROTATE(TMACRO *) {
    EDIT_FRAME<LIST>([](FRAME &frame) { frame.UNROTATE(); });
}

template <auto *LIST> void L2G_REF(TMACRO *engine) {
    engine->COMMAND_RESULT =
        GETSTRING(LIST->CURRENT().GETFRAME().L2G(GETVECTOR(engine->GETPARAMETER(1))));
}

template <auto *LIST> void G2L_REF(TMACRO *engine) {
    engine->COMMAND_RESULT =
        GETSTRING(LIST->CURRENT().GETFRAME().G2L_ROUND(GETVECTOR(engine->GETPARAMETER(1))));
}
} // namespace morvane
