// Keeps the visible numbers of lists right while the text is edited.
#pragma once
#include <optional>
#include <vector>

#include "document/Document.h"
#include "document/lists/ListRenumbering.h"

namespace lumenote {

/// Collects what the edits of one command do to lists. Edits that add, remove or move no paragraph
/// of a list cost two look-ups.
class ListEdits {
 public:
  explicit ListEdits(Document& document) : document_(document) {}

  /// Begins a command.
  void Begin();
  /// Call before each edit.
  void Before(Position from, Position to, const Fragment& fragment);
  /// What the command makes of the numbers; call once at its end.
  std::vector<NumberChange> Finish();

 private:
  NoteLists& Lists();
  std::vector<ParaId> ItemsOf(const LeafList& leaves, Selection range) const;
  void Affect(ParaId item);
  void AffectItemAt(Position position);
  void Record(Selection range, Position inserted);

  Document& document_;
  std::optional<NoteLists> lists_;  // of `head_`
  HeadId head_ = 0;
  EditedLists edited_;
};

}  // namespace lumenote
