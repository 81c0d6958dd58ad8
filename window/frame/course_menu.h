#pragma once

class QMenu;

namespace tarnel {

class BoxDesk;
class CourseDesk;

/// Fills `menu` with the courses that the user has, whenever it opens, and the menu of a course
/// with its exercises.
void fillWithCourses(QMenu& menu, CourseDesk& courses, BoxDesk& boxes);

} // namespace tarnel
