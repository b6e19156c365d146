#pragma once

// Handlers of the line commands, by the file that holds them. Each reads its parameters, calls one
// operation on the line cloud in use and hands back a result.
namespace morvane {
class TMACRO;

// state.cpp
void LINE_OBJECTS_LAMD(TMACRO *engine);
void LINE_LINES_LAMD(TMACRO *engine);
void LINE_POINTS_LAMD(TMACRO *engine);
void LINE_CLEAR(TMACRO *engine);
void LINE_COPY_REF(TMACRO *engine);
void LINE_OBJECT_NAME(TMACRO *engine);
void LINE_OBJECT_NAME_REF(TMACRO *engine);

// io.cpp
void LINE_LOAD(TMACRO *engine);
void LINE_SAVE(TMACRO *engine);
void LINE_SAVE_DXF(TMACRO *engine);
void LINE_SAVE_OBJ(TMACRO *engine);
void LINE_SAVE_VTK(TMACRO *engine);
void LINE_SAVE_TRACKVIS(TMACRO *engine);
void LINE_SAVE_MAYA(TMACRO *engine);
void LINE_SAVE_MV3D(TMACRO *engine);
void LINE_SAVE_SWC(TMACRO *engine);
void LINE_SAVE_TXT(TMACRO *engine);

// draw.cpp
void LINE_DRAW_VALUE(TMACRO *engine);
void LINE_DRAW_VALUE_T(TMACRO *engine);
void LINE_DRAW_T(TMACRO *engine);
void LINE_DRAW_POINT(TMACRO *engine);
void LINE_DRAW_POINT_SOLID(TMACRO *engine);
void LINE_DRAW_SPHERE(TMACRO *engine);
void LINE_DRAW_SPHERE_SOLID(TMACRO *engine);
void LINE_DRAW_CUBE(TMACRO *engine);
void LINE_DRAW_CUBE_SOLID(TMACRO *engine);
void LINE_DRAW_LINE(TMACRO *engine);
void LINE_DRAW_LINE_SOLID(TMACRO *engine);
void LINE_DRAW(TMACRO *engine);
void LINE_DRAW_SOLID(TMACRO *engine);
} // namespace morvane
