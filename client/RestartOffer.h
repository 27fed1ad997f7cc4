#pragma once

class DataDirectory;
class QWidget;

namespace RestartOffer {

/// Asks whether the client shall restart now. If so, starts the restarter and ends the client.
void make(QWidget* parent, const DataDirectory& directory);

} // namespace RestartOffer
