// A component that is drawn again only when one of its properties is another one.

import { Component, type ComponentChildren, h } from "preact";

function areSame(one: object, two: object): boolean {
  const [before, after] = [one, two].map((each) => each as Readonly<Record<string, unknown>>);
  const names = Object.keys(one);
  return names.length === Object.keys(two).length && names.every((name) => before?.[name] === after?.[name]);
}

export function memo<Props extends object>(view: (props: Props) => ComponentChildren) {
  return class Memo extends Component<Props> {
    override shouldComponentUpdate(next: Props): boolean {
      return !areSame(this.props, next);
    }

    override render() {
      return h(view as never, this.props as never);
    }
  };
}
