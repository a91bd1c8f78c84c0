#pragma once

#include <tests/desktop/View.h>

namespace wayvane::sim {

class Control : public View, public platform::Control {
public:
  using View::View;

  void setAction(Text action);
  [[nodiscard]] Text action() const override;
  [[nodiscard]] bool sendsAction(const platform::SearchText& action) const override;

protected:
  [[nodiscard]] const void* role(platform::ViewKind kind) const override;
  void pressed() override;

private:
  Text action_;
};

class Button : public Control, public platform::Button {
public:
  Button(Desktop& desktop, const ClassInfo& info, const ButtonOptions& options);

  void setTitle(std::string title) { title_ = std::move(title); }

  void setImage(platform::ImageHandle image, bool imageOnly);
  [[nodiscard]] std::string title() const override;
  [[nodiscard]] bool isTitled(const platform::SearchText& text) const override;
  [[nodiscard]] bool isImageOnly() const override;
  [[nodiscard]] platform::ImageHandle image() const override;

protected:
  [[nodiscard]] const void* role(platform::ViewKind kind) const override;

private:
  std::string title_;
  bool imageOnly_ = false;
  platform::ImageHandle image_;
};

class PopUpButton : public Button, public platform::PopUpButton {
public:
  PopUpButton(Desktop& desktop, const ClassInfo& info, const PopUpButtonOptions& options);

  void select(int index) { selected_ = index; }

  [[nodiscard]] Text titleOfSelectedItem() const override;

protected:
  [[nodiscard]] const void* role(platform::ViewKind kind) const override;

private:
  std::vector<std::string> items_;
  int selected_;
};

class SegmentedControl : public Control, public platform::SegmentedControl {
public:
  SegmentedControl(Desktop& desktop, const ClassInfo& info, const SegmentedControlOptions& options);

  void select(int segment) { selected_ = segment; }

  [[nodiscard]] int selectedSegment() const override;
  [[nodiscard]] int segmentCount() const override;
  [[nodiscard]] Text labelForSegment(int segment) const override;

protected:
  [[nodiscard]] const void* role(platform::ViewKind kind) const override;

private:
  std::vector<Text> labels_;
  int selected_;
};

class TextField : public Control, public platform::TextField {
public:
  TextField(Desktop& desktop, const ClassInfo& info, const TextFieldOptions& options);

  void setStringValue(std::string value) { value_ = std::move(value); }

  void setEditable(bool editable) { editable_ = editable; }

  [[nodiscard]] bool isEditable() const override;
  [[nodiscard]] std::string stringValue() const override;
  [[nodiscard]] Text placeholderString() const override;

protected:
  [[nodiscard]] const void* role(platform::ViewKind kind) const override;

private:
  std::string value_;
  bool editable_;
  Text placeholder_;
};

class TokenField : public TextField {
public:
  using TextField::TextField;
};

class TextView : public View, public platform::TextView {
public:
  TextView(Desktop& desktop, const ClassInfo& info, const TextViewOptions& options);

  void setString(std::string value) { value_ = std::move(value); }

  void setEditable(bool editable) { editable_ = editable; }

  void setDelegate(platform::ViewHandle delegate) { delegate_ = std::move(delegate); }

  [[nodiscard]] bool isEditable() const override;
  [[nodiscard]] std::string string() const override;
  [[nodiscard]] bool isFieldEditor() const override;
  [[nodiscard]] platform::ViewHandle delegate() const override;

protected:
  [[nodiscard]] const void* role(platform::ViewKind kind) const override;

private:
  std::string value_;
  bool editable_;
  bool fieldEditor_;
  platform::ViewHandle delegate_;
};

class Box : public View, public platform::Box {
public:
  Box(Desktop& desktop, const ClassInfo& info, const BoxOptions& options);

  void setTitle(std::string title) { title_ = std::move(title); }

  [[nodiscard]] std::string title() const override;

protected:
  [[nodiscard]] const void* role(platform::ViewKind kind) const override;

private:
  std::string title_;
};

} // namespace wayvane::sim
