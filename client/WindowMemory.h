#pragma once

#include <QRect>
#include <QVector>

class DataDirectory;
class RecordView;
class QWidget;

/// Where the window stood, how large it and its columns were, and what was searched for: kept in a
/// file of its own for the next start.
namespace WindowMemory {

/// Puts @p window and @p view as they were kept. What does not fit the screens is corrected; what
/// was not kept stays as it is.
void restore(const DataDirectory& directory, QWidget& window, RecordView& view);

void keep(const DataDirectory& directory, const QWidget& window, const RecordView& view);

/// @p wanted on the screen that has most of it, or on the first one: no larger than the screen, and
/// nothing of it outside. @p screens are what windows may cover, with room for their frames.
QRect fitted(const QRect& wanted, const QVector<QRect>& screens);

} // namespace WindowMemory
