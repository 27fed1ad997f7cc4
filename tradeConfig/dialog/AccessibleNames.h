#pragma once

#include <QString>

#include <initializer_list>

class QLabel;

/**
 * The names under which assistive technology knows the fields of the form: their labels, without
 * the colon. A label by itself names its buddy with the colon.
 */
namespace AccessibleNames {

/// What @p label says, without a colon at the end.
QString of(const QLabel& label);

/// Names the buddy of each label. Once, when the form is built. Combo boxes are left out: the
/// toolkit has their choice for a name and leads to the label by a relation.
void giveFrom(std::initializer_list<const QLabel*> labels);

} // namespace AccessibleNames
