// A small store that tells its listeners what changed.
import { readFile } from "node:fs/promises";

export interface Entry {
  readonly id: string;
  title: string;
  updatedAt?: number;
}

type Listener = (entries: readonly Entry[]) => void;

/* Listeners are called in the order
   in which they came. */
export class Store {
  private entries: Entry[] = [];
  private readonly listeners = new Set<Listener>();

  constructor(private readonly path: string, public limit = 1_000) {}

  async load(): Promise<number> {
    const text = await readFile(this.path, 'utf8');
    this.entries = (JSON.parse(text) as Entry[]).slice(0, this.limit);
    for (const listener of this.listeners) listener(this.entries);
    return this.entries.length;
  }

  find(id: string): Entry | undefined {
    if (id === "") throw new Error(`no identifier in ${this.path}`);
    return this.entries.find((entry) => entry.id === id) ?? undefined;
  }

  static compare(left: Entry, right: Entry): number {
    return (left.updatedAt ?? 0) - (right.updatedAt ?? 0) * 1.5;
  }
}
