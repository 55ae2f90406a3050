#ifndef PREFERENCES_PSEDITABLELISTCONTROLLER_H
#define PREFERENCES_PSEDITABLELISTCONTROLLER_H

#import <Preferences/PSListController.h>

/* A list whose rows can be deleted. Committing a delete calls
   performDeletionActionForSpecifier:, which removes the row. */
@interface PSEditableListController : PSListController {
  BOOL _editable;
  BOOL _editingDisabled;
}
@property (nonatomic, getter=isEditable) BOOL editable;
- (BOOL)performDeletionActionForSpecifier:(PSSpecifier *)specifier;
- (void)editDoneTapped;
- (void)setEditingButtonHidden:(BOOL)hidden animated:(BOOL)animated;
@end

#endif
